/* What a chassis-management daemon does when it starts: it loads the description, then goes through the FRUs level by
 * level, with the board in each slot and the sensors with their thresholds.
 *
 *     cc inventory.c $(pkg-config --cflags --libs libdst) -o inventory */
#include <chsinfo/libdst.h>
#include <stdio.h>

/* A row of a name table. Members hold -1 for a name that is unknown, and some rows have no name. */
#define NAME_OF(table, value) name_of(table, (int)(sizeof(table) / sizeof *(table)), value)
static const char *name_of(const char *const *table, int rows, int value) {
    return value >= 0 && value < rows && table[value] ? table[value] : "";
}

static void print_board(int depth, const char *name, ctrl_type_t controller, uint32_t driver) {
    printf("%*sboard %s: controller %s, driver %u\n", depth, "", name, NAME_OF(dst_ctrl_type, controller), driver);
}

#define PRINT_BOARDS(type, next)                                                                                       \
    for (type *board = next(fru->id, NULL); board; board = next(fru->id, board))                                       \
    print_board(depth, board->name, board->ctrl_type, board->driver_id)

/* Boards, power supplies and fan trays. Asking for the kind that the FRU is keeps the log free of empty lists. */
static void print_boards(int depth, const fru_info_t *fru) {
    switch (fru->fru_type) {
    case FRU_TYPE_FAN:
        PRINT_BOARDS(fan_info_t, libchs_fru_fan_info_get_next);
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
    printf("%*s%s:", depth, "", NAME_OF(dst_aflow_type, threshold->aflow_type));
    for (const limit_t *limit = threshold->limit_list.tqh_first; limit; limit = limit->limit_next.tqe_next)
        printf(" fan step %d at %u,", limit->fan_step_id, limit->temp);
    for (const alarm_info_t *alarm = threshold->alarm_list.tqh_first; alarm; alarm = alarm->alarm_next.tqe_next)
        printf(" %s at %u,", NAME_OF(dst_tmpsnr_thres_alarm_type, alarm->type), alarm->alarm);
    printf(" fire at %u\n", threshold->fire);
}

static void print_sensors(int depth, const fru_info_t *fru) {
    for (tmpsnr_info_t *sensor = libchs_tmpsnr_info_get_next(NULL); sensor;
         sensor = libchs_tmpsnr_info_get_next(sensor)) {
        if (sensor->fru_info != fru)
            continue;
        printf("%*stemperature sensor %u: controller %s\n", depth, "", sensor->id,
               NAME_OF(dst_ctrl_type, sensor->ctrl_type));
        for (const tmpsnr_threshold_t *threshold = sensor->threshold_list.tqh_first; threshold;
             threshold = threshold->threshold_next.tqe_next)
            print_threshold(depth + 2, threshold);
    }
    for (voltsnr_info_t *sensor = libchs_voltsnr_info_get_next(NULL); sensor;
         sensor = libchs_voltsnr_info_get_next(sensor))
        if (sensor->fru_info == fru)
            printf("%*svoltage sensor %s: controller %s, default %u, margin %u\n", depth, "", sensor->name,
                   NAME_OF(dst_ctrl_type, sensor->ctrl_type), sensor->def_voltage, sensor->margin);
}

/* The walks over FRU relatives log their end as an error, also when all is well. */
static void print_fru(int depth, fru_info_t *fru) {
    printf("%*s%s: %s in slot %u\n", depth, "", fru->name, NAME_OF(dst_fru_type, fru->fru_type), fru->slot);
    print_boards(depth + 2, fru);
    print_sensors(depth + 2, fru);
    for (fru_info_t *child = libchs_fru_info_get_next_child(fru, NULL); child;
         child = libchs_fru_info_get_next_child(fru, child))
        print_fru(depth + 2, child);
}

int main(void) {
    if (libchs_init() < 0)
        return 1; /* the log says why */
    const chassis_info_t *chassis = libchs_chassis_info_get();
    printf("inventory of a %s chassis\n", NAME_OF(dst_chassis_family_type, chassis->family));
    for (fru_info_t *fru = libchs_fru_info_get_next_parent(NULL); fru; fru = libchs_fru_info_get_next_parent(fru))
        print_fru(0, fru);
    libchs_release();
    return 0;
}
