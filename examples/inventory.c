/* What a chassis-management daemon does when it starts: it loads the description, then goes through the FRUs level by
 * level, with the board in each slot, the fans of a tray and the sensors with their thresholds.
 *
 *     cc inventory.c $(pkg-config --cflags --libs libdst) -o inventory */
#include <chsinfo/libdst.h>
#include <stdio.h>
#include <sys/queue.h>

static void print_board(int depth, const char *name, ctrl_type_t controller, uint32_t driver) {
    printf("%*sboard %s: controller %s, driver %u\n", depth, "", name, DST_NAME(dst_ctrl_type, controller), driver);
}

/* A tray begins the module record of its controller. */
static void print_fans(int depth, const fan_info_t *tray) {
    switch (tray->ctrl_type) {
#define PRINT_FANS(controller, module_record, fan_record)                                                              \
    case controller: {                                                                                                 \
        const module_record *module = DST_FAN_MODULE(module_record, tray);                                             \
        const fan_record *fan;                                                                                         \
        TAILQ_FOREACH(fan, &module->fan_info, fan_info_next) {                                                         \
            printf("%*sfan %u: %s\n", depth, "", fan->fan_id, fan->name);                                              \
        }                                                                                                              \
        break;                                                                                                         \
    }
        DST_FAN_MODULES(PRINT_FANS)
    default:
        break;
    }
}

static void print_trays(int depth, const fru_info_t *fru) {
    for (fan_info_t *tray = libchs_fru_fan_info_get_next(fru->id, NULL); tray;
         tray = libchs_fru_fan_info_get_next(fru->id, tray)) {
        print_board(depth, tray->name, tray->ctrl_type, tray->driver_id);
        print_fans(depth + 2, tray);
    }
}

static void print_leds(int depth, const fru_info_t *fru) {
    for (led_info_t *led = libchs_led_info_get_next(NULL); led; led = libchs_led_info_get_next(led))
        if (led->fru_info == fru)
            printf("%*sshows %s: controller %s\n", depth, "", DST_NAME(dst_led_type, led->led_type),
                   DST_NAME(dst_ctrl_type, led->ctrl_type));
}

#define PRINT_BOARDS(type, next)                                                                                       \
    for (type *board = next(fru->id, NULL); board; board = next(fru->id, board))                                       \
    print_board(depth, board->name, board->ctrl_type, board->driver_id)

/* Boards, power supplies, fan trays and LEDs. Asking for the kind that the FRU is keeps the log free of empty lists. */
static void print_boards(int depth, const fru_info_t *fru) {
    switch (fru->fru_type) {
    case FRU_TYPE_FAN:
        print_trays(depth, fru);
        break;
    case FRU_TYPE_LED:
        print_leds(depth, fru);
        break;
    case FRU_TYPE_PEM:
        PRINT_BOARDS(pem_info_t, libchs_fru_pem_info_get_next);
        break;
    case FRU_TYPE_PIC:
        PRINT_BOARDS(pic_info_t, libchs_fru_pic_info_get_next);
        break;
    case FRU_TYPE_FPC:
        PRINT_BOARDS(fpc_info_t, libchs_fru_fpc_info_get_next);
        break;
    case FRU_TYPE_SIB:
        PRINT_BOARDS(sib_info_t, libchs_fru_sib_info_get_next);
        break;
    case FRU_TYPE_FPM:
        PRINT_BOARDS(fpm_info_t, libchs_fru_fpm_info_get_next);
        break;
    case FRU_TYPE_FTC:
        PRINT_BOARDS(ftc_info_t, libchs_fru_ftc_info_get_next);
        break;
    case FRU_TYPE_CB:
        PRINT_BOARDS(cb_info_t, libchs_fru_cb_info_get_next);
        break;
    case FRU_TYPE_TIB:
        PRINT_BOARDS(tib_info_t, libchs_fru_tib_info_get_next);
        break;
    default:
        break;
    }
}

static void print_threshold(int depth, const tmpsnr_threshold_t *threshold) {
    const limit_t *limit;
    const alarm_info_t *alarm;
    printf("%*s%s:", depth, "", DST_NAME(dst_aflow_type, threshold->aflow_type));
    TAILQ_FOREACH(limit, &threshold->limit_list, limit_next) {
        printf(" fan step %d at %u,", limit->fan_step_id, limit->temp);
    }
    TAILQ_FOREACH(alarm, &threshold->alarm_list, alarm_next) {
        printf(" %s at %u,", DST_NAME(dst_tmpsnr_thres_alarm_type, alarm->type), alarm->alarm);
    }
    printf(" fire at %u\n", threshold->fire);
}

static void print_sensors(int depth, const fru_info_t *fru) {
    for (tmpsnr_info_t *sensor = libchs_tmpsnr_info_get_next(NULL); sensor;
         sensor = libchs_tmpsnr_info_get_next(sensor)) {
        if (sensor->fru_info != fru)
            continue;
        printf("%*stemperature sensor %u: controller %s\n", depth, "", sensor->id,
               DST_NAME(dst_ctrl_type, sensor->ctrl_type));
        const tmpsnr_threshold_t *threshold;
        TAILQ_FOREACH(threshold, &sensor->threshold_list, threshold_next) { print_threshold(depth + 2, threshold); }
    }
    for (voltsnr_info_t *sensor = libchs_voltsnr_info_get_next(NULL); sensor;
         sensor = libchs_voltsnr_info_get_next(sensor))
        if (sensor->fru_info == fru)
            printf("%*svoltage sensor %s: controller %s, default %u, margin %u\n", depth, "", sensor->name,
                   DST_NAME(dst_ctrl_type, sensor->ctrl_type), sensor->def_voltage, sensor->margin);
}

/* In columns, two a level: descriptions may nest FRUs as deep as they like, and the stack is only so large. */
enum { DEEPEST = 40 };

/* The walks over FRU relatives log their end as an error, also when all is well. They go by id: where ids repeat, a FRU
 * is given as its own child, or as the child of another, so the pointer decides. */
static void print_fru(int depth, fru_info_t *fru) {
    printf("%*s%s: %s in slot %u\n", depth, "", fru->name, DST_NAME(dst_fru_type, fru->fru_type), fru->slot);
    print_boards(depth + 2, fru);
    print_sensors(depth + 2, fru);
    for (fru_info_t *child = libchs_fru_info_get_next_child(fru, NULL); child && depth < DEEPEST;
         child = libchs_fru_info_get_next_child(fru, child))
        if (child->parent == fru)
            print_fru(depth + 2, child);
}

int main(void) {
    if (libchs_init() < 0)
        return 1; /* the log says why */
    const chassis_info_t *chassis = libchs_chassis_info_get();
    printf("inventory of a %s chassis\n", DST_NAME(dst_chassis_family_type, chassis->family));
    for (fru_info_t *fru = libchs_fru_info_get_next_parent(NULL); fru; fru = libchs_fru_info_get_next_parent(fru))
        print_fru(0, fru);
    libchs_release();
    return 0;
}
