/* Each query on an example chassis: for a walk how many records there are, the first and the last; else the record. */
#include <chsinfo/libdst.h>
#include <stdio.h>
#include <string.h>

static bool present(cepm_type_t type) { return type == EPM_TYPE_CPUBOARDID; }
static int fill(cepm_data_t *data, cepm_type_t type) {
    data->cepm_type = type;
    return 0;
}

/* After the query, how its record `at` is told: by name, by a number, or as printf() would. */
#define NAMED "%s", at->name
#define NUMBERED(member) "%u", (unsigned)at->member
#define WALK(record, query, ...)                                                                                       \
    do {                                                                                                               \
        char first[128] = "none", last[128] = "none";                                                                  \
        int count = 0;                                                                                                 \
        for (record *at = NULL; (at = (query)); ++count) {                                                             \
            snprintf(last, sizeof last, __VA_ARGS__);                                                                  \
            if (count == 0)                                                                                            \
                strcpy(first, last);                                                                                   \
        }                                                                                                              \
        printf("%s: %d, %s to %s\n", #query, count, first, last);                                                      \
    } while (0)
#define RECORD(record, query, ...)                                                                                     \
    do {                                                                                                               \
        const record *at = (query);                                                                                    \
        printf("%s: ", #query);                                                                                        \
        if (at)                                                                                                        \
            printf(__VA_ARGS__);                                                                                       \
        puts(at ? "" : "none");                                                                                        \
    } while (0)

int main(void) {
    epm_null_ops = (epm_data_init_ops_t){present, fill};
    if (libchs_init() != 0)
        return 1;
    puts("queries");

    WALK(i2c_dev_info_t, libchs_i2c_dev_info_get_next(at), NAMED);
    WALK(i2c_dev_info_t, libchs_i2c_dev_info_get_next_by_type(at, I2C_TYPE_TMPSNR), NAMED);
    RECORD(i2c_dev_info_t, libchs_i2c_dev_info_by_id(1), NAMED);
    WALK(fan_info_t, libchs_fan_info_get_next(at), NAMED);
    WALK(pem_info_t, libchs_pem_info_get_next(at), NAMED);
    WALK(fpc_info_t, libchs_fpc_info_get_next(at), NAMED);
    WALK(sib_info_t, libchs_sib_info_get_next(at), NAMED);
    WALK(fpm_info_t, libchs_fpm_info_get_next(at), NAMED);
    WALK(ftc_info_t, libchs_ftc_info_get_next(at), NAMED);
    WALK(cb_info_t, libchs_cb_info_get_next(at), NAMED);
    WALK(tib_info_t, libchs_tib_info_get_next(at), NAMED);
    WALK(tmpsnr_info_t, libchs_tmpsnr_info_get_next(at), NUMBERED(id));
    RECORD(tmpsnr_info_t, libchs_tmpsnr_info_get_by_id(12), "%s", at->fru_info->name);
    WALK(voltsnr_info_t, libchs_voltsnr_info_get_next(at), NAMED);
    RECORD(voltsnr_info_t, libchs_voltsnr_info_get_by_id(16), NAMED);
    WALK(led_info_t, libchs_led_info_get_next(at), NAMED);
    RECORD(led_info_t, libchs_led_info_get_by_id(19), NAMED);
    WALK(lcd_info_t, libchs_lcd_info_get_next(at), NAMED);
    RECORD(lcd_info_t, libchs_lcd_info_get_by_id(0), NAMED);
    WALK(btn_info_t, libchs_btn_info_get_next(at), NAMED);
    RECORD(btn_info_t, libchs_btn_info_get_by_id(1), NAMED);
    WALK(pic_info_t, libchs_pic_info_get_next(at), NAMED);

    WALK(asic_info_t, libchs_asic_info_get_next(at), NAMED);
    WALK(bcm_port_info_t, libchs_bcm_port_info_get_next(1, at), NUMBERED(id));
    RECORD(bcm_port_info_t, libchs_bcm_port_info_get_by_port_no(20), NUMBERED(fp_port));
    WALK(bcm_port_info_t, libchs_bcm_port_info_get_next_by_picid(1, at), NUMBERED(id));
    WALK(optics_info_t, libchs_optics_info_get_next(at), NUMBERED(port_id));
    WALK(optics_info_t, libchs_optics_info_get_next_by_port_no(1, at), NUMBERED(pic_id));
    WALK(optics_info_t, libchs_optics_info_get_next_by_slotno(1, at), NUMBERED(port_id));
    WALK(fru_model_info_t, libdst_fru_model_info_get_next(at), NAMED);
    WALK(fru_model_info_t, libdst_fru_model_info_get_next_by_type(at, FRU_TYPE_PEM), NAMED);
    WALK(fru_model_info_t, libdst_chassis_model_info_get_next(at), NAMED);

    WALK(fru_info_t, libchs_fru_info_get_next(at), NAMED);
    RECORD(fru_info_t, libchs_fru_info_get_by_id(100), NAMED);
    WALK(fru_info_t, libchs_fru_info_get_next_by_fan(at), NAMED);
    WALK(fru_info_t, libchs_fru_info_get_next_by_pem(at), NAMED);
    WALK(fru_info_t, libchs_fru_info_get_next_by_fpc(at), NAMED);
    WALK(fru_info_t, libchs_fru_info_get_next_by_sib(at), NAMED);
    WALK(fru_info_t, libchs_fru_info_get_next_by_fpm(at), NAMED);
    WALK(fru_info_t, libchs_fru_info_get_next_by_ftc(at), NAMED);
    WALK(fru_info_t, libchs_fru_info_get_next_by_cb(at), NAMED);
    WALK(fru_info_t, libchs_fru_info_get_next_by_tib(at), NAMED);
    WALK(fru_info_t, libchs_fru_info_get_next_by_pic(at), NAMED);
    WALK(fru_info_t, libchs_fru_info_get_next_parent(at), NAMED);
    fru_info_t *chassis = libchs_fru_info_get_next_parent(NULL);
    WALK(fru_info_t, libchs_fru_info_get_next_child(chassis, at), NAMED);
    uint32_t fru;
#define IN_SLOT(type, slot) (libdst_fru_info_get_id_by_type_slotno(type, slot, &fru), fru)
    WALK(fan_info_t, libchs_fru_fan_info_get_next(IN_SLOT(FRU_TYPE_FAN, 1), at), NAMED);
    WALK(pem_info_t, libchs_fru_pem_info_get_next(IN_SLOT(FRU_TYPE_PEM, 1), at), NAMED);
    WALK(fpc_info_t, libchs_fru_fpc_info_get_next(IN_SLOT(FRU_TYPE_FPC, 1), at), NAMED);
    WALK(sib_info_t, libchs_fru_sib_info_get_next(IN_SLOT(FRU_TYPE_SIB, 1), at), NAMED);
    WALK(fpm_info_t, libchs_fru_fpm_info_get_next(IN_SLOT(FRU_TYPE_FPM, 1), at), NAMED);
    WALK(ftc_info_t, libchs_fru_ftc_info_get_next(IN_SLOT(FRU_TYPE_FTC, 1), at), NAMED);
    WALK(cb_info_t, libchs_fru_cb_info_get_next(IN_SLOT(FRU_TYPE_CB, 1), at), NAMED);
    WALK(tib_info_t, libchs_fru_tib_info_get_next(1, at), NAMED);
    WALK(pic_info_t, libchs_fru_pic_info_get_next(IN_SLOT(FRU_TYPE_PIC, 1), at), NAMED);

    printf("libchs_chassis_epm_data_init(): %d\n", libchs_chassis_epm_data_init());
    WALK(cepm_data_t, libchs_epm_data_get_next(at), NUMBERED(cepm_type));
    RECORD(cepm_data_t, libchs_epm_data_get_by_type(EPM_TYPE_CPUBOARDID), NUMBERED(cepm_type));
    RECORD(resil_fru_list_t, libdst_resil_get_fru_list(FRU_TYPE_FPC, 1), NUMBERED(resil_finfo.id));
    WALK(resil_module_list_t, libdst_resil_module_list_get_next(NULL, at), NUMBERED(resil_minfo.key));
    libchs_release();
    return 0;
}
