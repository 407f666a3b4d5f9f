/* The binary interface of libdst.h and of the operations table: sizes and offsets in 32 bit (i386) and 64 bit (x86-64),
 * enumerator values and the lengths of the name tables. A row that fails to compile is a change of the interface: the
 * soname must change with it. Compiles as C11 and as C++; a row is (what, 32 bit, 64 bit) or (what, value). WIDTH rows
 * are for members that padding follows, whose width no offset shows. */
#include <assert.h>
#include <chsinfo/libdst_priv.h>
#include <stddef.h>

#if UINTPTR_MAX == 0xffffffffu
#define BITS(in32, in64) in32
#else
#define BITS(in32, in64) in64
#endif

#define SIZE(type, in32, in64)                                                                                         \
    static_assert(sizeof(type) == BITS(in32, in64), "size of " #type " is not " #in32 " (32 bit), " #in64 " (64 bit)")
#define OFFSET(type, member, in32, in64)                                                                               \
    static_assert(offsetof(type, member) == BITS(in32, in64),                                                          \
                  #type "::" #member " is not at " #in32 " (32 bit), " #in64 " (64 bit)")
#define WIDTH(type, member, bytes)                                                                                     \
    static_assert(sizeof(((type *)NULL)->member) == bytes, #type "::" #member " is not " #bytes " bytes wide")
#define HEAD(type)                                                                                                     \
    SIZE(type, 8, 16);                                                                                                 \
    OFFSET(type, tqh_first, 0, 0);                                                                                     \
    OFFSET(type, tqh_last, 4, 8)
#define LINK(type, member)                                                                                             \
    static_assert(sizeof(((type *)NULL)->member) == BITS(8, 16), #type "::" #member " is not two pointers");           \
    OFFSET(type, member.tqe_next, offsetof(type, member), offsetof(type, member));                                     \
    OFFSET(type, member.tqe_prev, offsetof(type, member) + 4, offsetof(type, member) + 8)
#define SLOT_AT(index, slot) OFFSET(chassis_ops_t, slot, 4 * (index), 8 * (index))
#define ENUMERATOR(name, value) static_assert(name == value, #name " is not " #value)
#define COUNT(table, rows)                                                                                             \
    static_assert(sizeof(table) == (rows) * sizeof(char *), #table " does not have " #rows " rows")

SIZE(chassis_info_t, 260, 260);
OFFSET(chassis_info_t, family, 0, 0);
OFFSET(chassis_info_t, major, 4, 4);
OFFSET(chassis_info_t, minor, 8, 8);
OFFSET(chassis_info_t, ndram_slots, 12, 12);
OFFSET(chassis_info_t, nfan_slots, 16, 16);
OFFSET(chassis_info_t, npem_slots, 20, 20);
OFFSET(chassis_info_t, nfpc_slots, 24, 24);
OFFSET(chassis_info_t, nsib_slots, 28, 28);
OFFSET(chassis_info_t, nfpm_slots, 32, 32);
OFFSET(chassis_info_t, nftc_slots, 36, 36);
OFFSET(chassis_info_t, ncb_slots, 40, 40);
OFFSET(chassis_info_t, npic_slots, 44, 44);
OFFSET(chassis_info_t, ntib_slots, 48, 48);
OFFSET(chassis_info_t, nfpgas, 52, 52);
OFFSET(chassis_info_t, ntmpsnrs, 56, 56);
OFFSET(chassis_info_t, nvoltsnrs, 60, 60);
OFFSET(chassis_info_t, nfpleds, 64, 64);
OFFSET(chassis_info_t, nbpleds, 68, 68);
OFFSET(chassis_info_t, nbuttons, 72, 72);
OFFSET(chassis_info_t, feature, 76, 76);
OFFSET(chassis_info_t, nfrus, 80, 80);
OFFSET(chassis_info_t, pci_busaddr, 84, 84);
OFFSET(chassis_info_t, pci_subaddr1, 88, 88);
OFFSET(chassis_info_t, pci_subaddr2, 92, 92);
OFFSET(chassis_info_t, pci_busaddr_mezz, 96, 96);
OFFSET(chassis_info_t, pci_subaddr1_mezz, 100, 100);
OFFSET(chassis_info_t, pci_subaddr2_mezz, 104, 104);
OFFSET(chassis_info_t, lspci_override, 108, 108);
OFFSET(chassis_info_t, enable_resiliency, 112, 112);
OFFSET(chassis_info_t, platform_name, 116, 116);
OFFSET(chassis_info_t, sib_init_spmb, 244, 244);
OFFSET(chassis_info_t, enhanced_em_threshold, 248, 248);
OFFSET(chassis_info_t, support_psu_fan_ctl, 252, 252);
OFFSET(chassis_info_t, psm_fan_flt_dflt_debounce_cnt, 256, 256);

SIZE(i2c_mc_info_t, 20, 20);
OFFSET(i2c_mc_info_t, rentry, 0, 0);
OFFSET(i2c_mc_info_t, num_entries, 16, 16);

SIZE(i2c_dev_info_t, 620, 620);
OFFSET(i2c_dev_info_t, name, 0, 0);
OFFSET(i2c_dev_info_t, syspath, 128, 128);
OFFSET(i2c_dev_info_t, parent, 256, 256);
OFFSET(i2c_dev_info_t, location, 384, 384);
OFFSET(i2c_dev_info_t, id, 512, 512);
OFFSET(i2c_dev_info_t, driver_id, 516, 516);
OFFSET(i2c_dev_info_t, type, 520, 520);
OFFSET(i2c_dev_info_t, i2caddr, 524, 524);
OFFSET(i2c_dev_info_t, segment, 525, 525);
OFFSET(i2c_dev_info_t, reg_offset, 526, 526);
OFFSET(i2c_dev_info_t, muxaddr, 527, 527);
OFFSET(i2c_dev_info_t, smbus, 528, 528);
OFFSET(i2c_dev_info_t, mc_mux_addr_list, 532, 532);
OFFSET(i2c_dev_info_t, mc_chan_set_list, 552, 552);
OFFSET(i2c_dev_info_t, presence_mux_addr_list, 572, 572);
OFFSET(i2c_dev_info_t, presence_chan_set_list, 592, 592);
OFFSET(i2c_dev_info_t, presence_offset, 612, 612);
OFFSET(i2c_dev_info_t, presence_smbus, 613, 613);
OFFSET(i2c_dev_info_t, presence_cpld_addr, 614, 614);
OFFSET(i2c_dev_info_t, muxaddr1, 615, 615);
OFFSET(i2c_dev_info_t, muxaddr2, 616, 616);
OFFSET(i2c_dev_info_t, master_no, 617, 617);
OFFSET(i2c_dev_info_t, port_no, 618, 618);
WIDTH(i2c_dev_info_t, smbus, 1);
WIDTH(i2c_dev_info_t, port_no, 1);

SIZE(libdst_i2cdev_info_t, 628, 640);
OFFSET(libdst_i2cdev_info_t, i2cdev_info, 0, 0);
OFFSET(libdst_i2cdev_info_t, i2cdev_info_next, 620, 624);

SIZE(sim_assembly_id_t, 132, 132);
OFFSET(sim_assembly_id_t, program_bytes, 0, 0);
OFFSET(sim_assembly_id_t, program_bytes_read, 128, 128);

SIZE(sim_ss2rpm_fan_info_t, 24, 32);
OFFSET(sim_ss2rpm_fan_info_t, speed, 0, 0);
OFFSET(sim_ss2rpm_fan_info_t, rpm, 4, 4);
OFFSET(sim_ss2rpm_fan_info_t, tolerance, 8, 8);
OFFSET(sim_ss2rpm_fan_info_t, pwmval, 12, 12);
OFFSET(sim_ss2rpm_fan_info_t, sim_ss2rpm_info_next, 16, 16);

SIZE(sim_limit_t, 20, 32);
OFFSET(sim_limit_t, id, 0, 0);
OFFSET(sim_limit_t, temp, 4, 4);
OFFSET(sim_limit_t, fan_step_id, 8, 8);
OFFSET(sim_limit_t, limit_next, 12, 16);
WIDTH(sim_limit_t, fan_step_id, 4);

SIZE(sim_alarm_info_t, 20, 32);
OFFSET(sim_alarm_info_t, id, 0, 0);
OFFSET(sim_alarm_info_t, alarm, 4, 4);
OFFSET(sim_alarm_info_t, type, 8, 8);
OFFSET(sim_alarm_info_t, alarm_next, 12, 16);
WIDTH(sim_alarm_info_t, type, 4);

SIZE(sim_tmpsnr_threshold_t, 164, 192);
OFFSET(sim_tmpsnr_threshold_t, name, 0, 0);
OFFSET(sim_tmpsnr_threshold_t, id, 128, 128);
OFFSET(sim_tmpsnr_threshold_t, fire, 132, 132);
OFFSET(sim_tmpsnr_threshold_t, aflow_type, 136, 136);
OFFSET(sim_tmpsnr_threshold_t, alarm_list, 140, 144);
OFFSET(sim_tmpsnr_threshold_t, limit_list, 148, 160);
OFFSET(sim_tmpsnr_threshold_t, sim_threshold_next, 156, 176);
WIDTH(sim_tmpsnr_threshold_t, aflow_type, 4);

SIZE(sim_fru_data_t, 64, 88);
OFFSET(sim_fru_data_t, presence, 0, 0);
OFFSET(sim_fru_data_t, temperature, 8, 8);
OFFSET(sim_fru_data_t, fan_rpm, 12, 12);
OFFSET(sim_fru_data_t, fan_speed_percent, 16, 16);
OFFSET(sim_fru_data_t, input_voltage, 20, 20);
OFFSET(sim_fru_data_t, output_voltage, 24, 24);
OFFSET(sim_fru_data_t, input_current, 28, 28);
OFFSET(sim_fru_data_t, output_current, 32, 32);
OFFSET(sim_fru_data_t, fan_af_type, 36, 36);
OFFSET(sim_fru_data_t, sim_ss2rpm, 40, 40);
OFFSET(sim_fru_data_t, sim_ts_threshold, 48, 56);
OFFSET(sim_fru_data_t, sim_fru_data_next, 56, 72);
WIDTH(sim_fru_data_t, presence, 6);

SIZE(fru_info_t, 440, 472);
OFFSET(fru_info_t, i2cdev, 0, 0);
OFFSET(fru_info_t, i2cdev_ext, 4, 8);
OFFSET(fru_info_t, name, 8, 16);
OFFSET(fru_info_t, id, 136, 144);
OFFSET(fru_info_t, driverid, 140, 148);
OFFSET(fru_info_t, epmsize, 144, 152);
OFFSET(fru_info_t, parent, 148, 160);
OFFSET(fru_info_t, fru_type, 152, 168);
OFFSET(fru_info_t, fru_removable_type, 156, 172);
OFFSET(fru_info_t, virtual_fru_stats_file_name, 160, 176);
OFFSET(fru_info_t, slot, 416, 432);
OFFSET(fru_info_t, logical_slot, 417, 433);
OFFSET(fru_info_t, epmvalid, 418, 434);
OFFSET(fru_info_t, hyst_offset, 420, 436);
OFFSET(fru_info_t, max_alarm_reasons, 424, 440);
OFFSET(fru_info_t, virtual_i2c_data, 428, 448);
OFFSET(fru_info_t, virtual_fru_data, 432, 456);
WIDTH(fru_info_t, epmsize, 4);
WIDTH(fru_info_t, epmvalid, 1);
WIDTH(fru_info_t, max_alarm_reasons, 4);

SIZE(fru_module_list_t, 460, 504);
OFFSET(fru_module_list_t, fru_minfo, 0, 0);
OFFSET(fru_module_list_t, i2cdev_id, 440, 472);
OFFSET(fru_module_list_t, i2cdev_id_ext, 444, 476);
OFFSET(fru_module_list_t, parent_id, 448, 480);
OFFSET(fru_module_list_t, fru_next, 452, 488);
WIDTH(fru_module_list_t, parent_id, 4);

SIZE(ambient_temp_t, 24, 32);
OFFSET(ambient_temp_t, temperature, 0, 0);
OFFSET(ambient_temp_t, max_power, 4, 4);
OFFSET(ambient_temp_t, mic_max_power, 8, 8);
OFFSET(ambient_temp_t, bandwidth, 12, 12);
OFFSET(ambient_temp_t, ambient_temp_next, 16, 16);

SIZE(fru_model_info_t, 564, 576);
OFFSET(fru_model_info_t, id, 0, 0);
OFFSET(fru_model_info_t, name, 4, 4);
OFFSET(fru_model_info_t, desc, 132, 132);
OFFSET(fru_model_info_t, part_number, 260, 260);
OFFSET(fru_model_info_t, asm_id, 388, 388);
OFFSET(fru_model_info_t, fru_type, 392, 392);
OFFSET(fru_model_info_t, aflow_type, 396, 396);
OFFSET(fru_model_info_t, power_type, 400, 400);
OFFSET(fru_model_info_t, fru_desc, 404, 404);
OFFSET(fru_model_info_t, ambient_temp_info, 532, 536);
OFFSET(fru_model_info_t, power_rating, 540, 552);
OFFSET(fru_model_info_t, peak_power, 544, 556);
OFFSET(fru_model_info_t, pem_inpsw_act, 548, 560);
OFFSET(fru_model_info_t, fru_level_empolicy, 549, 561);
OFFSET(fru_model_info_t, nfans, 550, 562);
OFFSET(fru_model_info_t, enh_temp_threshold, 551, 563);
OFFSET(fru_model_info_t, driverid, 552, 564);
OFFSET(fru_model_info_t, min_fan_speed, 556, 568);
OFFSET(fru_model_info_t, nfeeds, 560, 572);
WIDTH(fru_model_info_t, asm_id, 2);
WIDTH(fru_model_info_t, fru_desc, 128);

SIZE(frumodel_module_list_t, 572, 592);
OFFSET(frumodel_module_list_t, frumodel_minfo, 0, 0);
OFFSET(frumodel_module_list_t, frumodel_next, 564, 576);

SIZE(ss2rpm_fan_info_t, 32, 40);
OFFSET(ss2rpm_fan_info_t, speed, 0, 0);
OFFSET(ss2rpm_fan_info_t, afi_speed, 4, 4);
OFFSET(ss2rpm_fan_info_t, rpm, 8, 8);
OFFSET(ss2rpm_fan_info_t, tolerance, 12, 12);
OFFSET(ss2rpm_fan_info_t, pwmval, 16, 16);
OFFSET(ss2rpm_fan_info_t, afi_pwmval, 20, 20);
OFFSET(ss2rpm_fan_info_t, ss2rpm_info_next, 24, 24);

SIZE(fan_info_t, 152, 168);
OFFSET(fan_info_t, i2cdev, 0, 0);
OFFSET(fan_info_t, name, 4, 8);
OFFSET(fan_info_t, id, 132, 136);
OFFSET(fan_info_t, driver_id, 136, 140);
OFFSET(fan_info_t, ctrl_type, 140, 144);
OFFSET(fan_info_t, fru_info, 144, 152);
OFFSET(fan_info_t, slot, 148, 160);
WIDTH(fan_info_t, ctrl_type, 4);
WIDTH(fan_info_t, slot, 1);

SIZE(adt7470_fan_info_t, 164, 184);
OFFSET(adt7470_fan_info_t, name, 0, 0);
OFFSET(adt7470_fan_info_t, fan_id, 128, 128);
OFFSET(adt7470_fan_info_t, tach_low_byte_reg, 132, 132);
OFFSET(adt7470_fan_info_t, tach_high_byte_reg, 136, 136);
OFFSET(adt7470_fan_info_t, pwm_duty_cycle_reg, 140, 140);
OFFSET(adt7470_fan_info_t, speed_reg, 144, 144);
OFFSET(adt7470_fan_info_t, ss2rpm, 148, 152);
OFFSET(adt7470_fan_info_t, fan_info_next, 156, 168);
WIDTH(adt7470_fan_info_t, speed_reg, 4);

SIZE(adt7470_module_info_t, 164, 192);
OFFSET(adt7470_module_info_t, fan_tray_info, 0, 0);
OFFSET(adt7470_module_info_t, nfans, 152, 168);
OFFSET(adt7470_module_info_t, fan_info, 156, 176);
WIDTH(adt7470_module_info_t, nfans, 1);

SIZE(gfc0812_fan_info_t, 164, 184);
OFFSET(gfc0812_fan_info_t, name, 0, 0);
OFFSET(gfc0812_fan_info_t, fan_id, 128, 128);
OFFSET(gfc0812_fan_info_t, tach_low_byte_reg, 132, 132);
OFFSET(gfc0812_fan_info_t, tach_high_byte_reg, 136, 136);
OFFSET(gfc0812_fan_info_t, pwm_duty_cycle_reg, 140, 140);
OFFSET(gfc0812_fan_info_t, ec_i2cs_fan_select, 144, 144);
OFFSET(gfc0812_fan_info_t, ss2rpm, 148, 152);
OFFSET(gfc0812_fan_info_t, fan_info_next, 156, 168);
WIDTH(gfc0812_fan_info_t, ec_i2cs_fan_select, 4);

SIZE(gfc0812_module_info_t, 164, 192);
OFFSET(gfc0812_module_info_t, fan_tray_info, 0, 0);
OFFSET(gfc0812_module_info_t, nfans, 152, 168);
OFFSET(gfc0812_module_info_t, fan_info, 156, 176);
WIDTH(gfc0812_module_info_t, nfans, 1);

SIZE(haskel_9hv0812_fan_info_t, 164, 184);
OFFSET(haskel_9hv0812_fan_info_t, name, 0, 0);
OFFSET(haskel_9hv0812_fan_info_t, fan_id, 128, 128);
OFFSET(haskel_9hv0812_fan_info_t, tach_low_byte_reg, 132, 132);
OFFSET(haskel_9hv0812_fan_info_t, tach_high_byte_reg, 136, 136);
OFFSET(haskel_9hv0812_fan_info_t, pwm_duty_cycle_reg, 140, 140);
OFFSET(haskel_9hv0812_fan_info_t, ec_i2cs_fan_select, 144, 144);
OFFSET(haskel_9hv0812_fan_info_t, ss2rpm, 148, 152);
OFFSET(haskel_9hv0812_fan_info_t, fan_info_next, 156, 168);
WIDTH(haskel_9hv0812_fan_info_t, ec_i2cs_fan_select, 4);

SIZE(haskel_9hv0812_module_info_t, 164, 192);
OFFSET(haskel_9hv0812_module_info_t, fan_tray_info, 0, 0);
OFFSET(haskel_9hv0812_module_info_t, nfans, 152, 168);
OFFSET(haskel_9hv0812_module_info_t, fan_info, 156, 176);
WIDTH(haskel_9hv0812_module_info_t, nfans, 1);

SIZE(pelian_fan_syspld_info_t, 152, 160);
OFFSET(pelian_fan_syspld_info_t, name, 0, 0);
OFFSET(pelian_fan_syspld_info_t, fan_id, 128, 128);
OFFSET(pelian_fan_syspld_info_t, fan_ctrl_reg, 132, 132);
OFFSET(pelian_fan_syspld_info_t, fan_ctrl_shift_bits, 136, 136);
OFFSET(pelian_fan_syspld_info_t, fan_speed_reg, 140, 140);
OFFSET(pelian_fan_syspld_info_t, fan_info_next, 144, 144);

SIZE(pelian_fan_syspld_module_info_t, 164, 192);
OFFSET(pelian_fan_syspld_module_info_t, fan_tray_info, 0, 0);
OFFSET(pelian_fan_syspld_module_info_t, nfans, 152, 168);
OFFSET(pelian_fan_syspld_module_info_t, fan_info, 156, 176);
WIDTH(pelian_fan_syspld_module_info_t, nfans, 1);

SIZE(generic_fan_module_info_t, 164, 192);
OFFSET(generic_fan_module_info_t, fan_tray_info, 0, 0);
OFFSET(generic_fan_module_info_t, nfans, 152, 168);
OFFSET(generic_fan_module_info_t, fan_info, 156, 176);
WIDTH(generic_fan_module_info_t, nfans, 1);

SIZE(fan_module_list_t, 16, 32);
OFFSET(fan_module_list_t, fan_minfo, 0, 0);
OFFSET(fan_module_list_t, fru_id, 4, 8);
OFFSET(fan_module_list_t, fan_next, 8, 16);
WIDTH(fan_module_list_t, fru_id, 4);

SIZE(pem_info_t, 160, 184);
OFFSET(pem_info_t, i2cdev, 0, 0);
OFFSET(pem_info_t, name, 4, 8);
OFFSET(pem_info_t, id, 132, 136);
OFFSET(pem_info_t, driver_id, 136, 140);
OFFSET(pem_info_t, ctrl_type, 140, 144);
OFFSET(pem_info_t, fru_info, 144, 152);
OFFSET(pem_info_t, slot, 148, 160);
OFFSET(pem_info_t, ss2rpm, 152, 168);
WIDTH(pem_info_t, ctrl_type, 4);
WIDTH(pem_info_t, slot, 1);

SIZE(pem_module_list_t, 16, 32);
OFFSET(pem_module_list_t, pem_minfo, 0, 0);
OFFSET(pem_module_list_t, fru_id, 4, 8);
OFFSET(pem_module_list_t, pem_next, 8, 16);
WIDTH(pem_module_list_t, fru_id, 4);

SIZE(fpc_info_t, 152, 168);
OFFSET(fpc_info_t, i2cdev, 0, 0);
OFFSET(fpc_info_t, name, 4, 8);
OFFSET(fpc_info_t, id, 132, 136);
OFFSET(fpc_info_t, driver_id, 136, 140);
OFFSET(fpc_info_t, ctrl_type, 140, 144);
OFFSET(fpc_info_t, fru_info, 144, 152);
OFFSET(fpc_info_t, slot, 148, 160);
WIDTH(fpc_info_t, ctrl_type, 4);
WIDTH(fpc_info_t, slot, 1);

SIZE(fpc_module_list_t, 16, 32);
OFFSET(fpc_module_list_t, fpc_minfo, 0, 0);
OFFSET(fpc_module_list_t, fru_id, 4, 8);
OFFSET(fpc_module_list_t, fpc_next, 8, 16);
WIDTH(fpc_module_list_t, fru_id, 4);

SIZE(sib_info_t, 164, 184);
OFFSET(sib_info_t, i2cdev, 0, 0);
OFFSET(sib_info_t, name, 4, 8);
OFFSET(sib_info_t, id, 132, 136);
OFFSET(sib_info_t, driver_id, 136, 140);
OFFSET(sib_info_t, ctrl_type, 140, 144);
OFFSET(sib_info_t, fru_info, 144, 152);
OFFSET(sib_info_t, slot, 148, 160);
OFFSET(sib_info_t, pf_efuse_values, 152, 168);
OFFSET(sib_info_t, pf_vol_to_be_set, 160, 176);
WIDTH(sib_info_t, ctrl_type, 4);
WIDTH(sib_info_t, slot, 1);
WIDTH(sib_info_t, pf_vol_to_be_set, 1);

SIZE(sib_module_list_t, 16, 32);
OFFSET(sib_module_list_t, sib_minfo, 0, 0);
OFFSET(sib_module_list_t, fru_id, 4, 8);
OFFSET(sib_module_list_t, sib_next, 8, 16);
WIDTH(sib_module_list_t, fru_id, 4);

SIZE(fpm_info_t, 156, 168);
OFFSET(fpm_info_t, i2cdev, 0, 0);
OFFSET(fpm_info_t, name, 4, 8);
OFFSET(fpm_info_t, id, 132, 136);
OFFSET(fpm_info_t, driver_id, 136, 140);
OFFSET(fpm_info_t, ctrl_type, 140, 144);
OFFSET(fpm_info_t, fru_info, 144, 152);
OFFSET(fpm_info_t, slot, 148, 160);
OFFSET(fpm_info_t, led_type, 152, 164);
WIDTH(fpm_info_t, ctrl_type, 4);
WIDTH(fpm_info_t, slot, 1);

SIZE(fpm_module_list_t, 16, 32);
OFFSET(fpm_module_list_t, fpm_minfo, 0, 0);
OFFSET(fpm_module_list_t, fru_id, 4, 8);
OFFSET(fpm_module_list_t, fpm_next, 8, 16);
WIDTH(fpm_module_list_t, fru_id, 4);

SIZE(ftc_info_t, 152, 168);
OFFSET(ftc_info_t, i2cdev, 0, 0);
OFFSET(ftc_info_t, name, 4, 8);
OFFSET(ftc_info_t, id, 132, 136);
OFFSET(ftc_info_t, driver_id, 136, 140);
OFFSET(ftc_info_t, ctrl_type, 140, 144);
OFFSET(ftc_info_t, fru_info, 144, 152);
OFFSET(ftc_info_t, slot, 148, 160);
WIDTH(ftc_info_t, ctrl_type, 4);
WIDTH(ftc_info_t, slot, 1);

SIZE(ftc_module_list_t, 16, 32);
OFFSET(ftc_module_list_t, ftc_minfo, 0, 0);
OFFSET(ftc_module_list_t, fru_id, 4, 8);
OFFSET(ftc_module_list_t, ftc_next, 8, 16);
WIDTH(ftc_module_list_t, fru_id, 4);

SIZE(cb_info_t, 160, 176);
OFFSET(cb_info_t, i2cdev, 0, 0);
OFFSET(cb_info_t, name, 4, 8);
OFFSET(cb_info_t, id, 132, 136);
OFFSET(cb_info_t, driver_id, 136, 140);
OFFSET(cb_info_t, ctrl_type, 140, 144);
OFFSET(cb_info_t, fru_info, 144, 152);
OFFSET(cb_info_t, slot, 148, 160);
OFFSET(cb_info_t, ntsensors, 152, 164);
OFFSET(cb_info_t, nvsensors, 156, 168);
WIDTH(cb_info_t, ctrl_type, 4);
WIDTH(cb_info_t, slot, 1);
WIDTH(cb_info_t, nvsensors, 4);

SIZE(cb_module_list_t, 16, 32);
OFFSET(cb_module_list_t, cb_minfo, 0, 0);
OFFSET(cb_module_list_t, fru_id, 4, 8);
OFFSET(cb_module_list_t, cb_next, 8, 16);
WIDTH(cb_module_list_t, fru_id, 4);

SIZE(tib_info_t, 152, 168);
OFFSET(tib_info_t, i2cdev, 0, 0);
OFFSET(tib_info_t, name, 4, 8);
OFFSET(tib_info_t, id, 132, 136);
OFFSET(tib_info_t, driver_id, 136, 140);
OFFSET(tib_info_t, ctrl_type, 140, 144);
OFFSET(tib_info_t, fru_info, 144, 152);
OFFSET(tib_info_t, slot, 148, 160);
WIDTH(tib_info_t, ctrl_type, 4);
WIDTH(tib_info_t, slot, 1);

SIZE(tib_module_list_t, 16, 32);
OFFSET(tib_module_list_t, tib_minfo, 0, 0);
OFFSET(tib_module_list_t, fru_id, 4, 8);
OFFSET(tib_module_list_t, tib_next, 8, 16);
WIDTH(tib_module_list_t, fru_id, 4);

SIZE(limit_t, 20, 32);
OFFSET(limit_t, id, 0, 0);
OFFSET(limit_t, temp, 4, 4);
OFFSET(limit_t, fan_step_id, 8, 8);
OFFSET(limit_t, limit_next, 12, 16);
WIDTH(limit_t, fan_step_id, 4);

SIZE(alarm_info_t, 20, 32);
OFFSET(alarm_info_t, id, 0, 0);
OFFSET(alarm_info_t, alarm, 4, 4);
OFFSET(alarm_info_t, type, 8, 8);
OFFSET(alarm_info_t, alarm_next, 12, 16);
WIDTH(alarm_info_t, type, 4);

SIZE(tmpsnr_threshold_t, 164, 192);
OFFSET(tmpsnr_threshold_t, name, 0, 0);
OFFSET(tmpsnr_threshold_t, id, 128, 128);
OFFSET(tmpsnr_threshold_t, fire, 132, 132);
OFFSET(tmpsnr_threshold_t, aflow_type, 136, 136);
OFFSET(tmpsnr_threshold_t, alarm_list, 140, 144);
OFFSET(tmpsnr_threshold_t, limit_list, 148, 160);
OFFSET(tmpsnr_threshold_t, threshold_next, 156, 176);
WIDTH(tmpsnr_threshold_t, aflow_type, 4);

SIZE(tmpsnr_info_t, 160, 176);
OFFSET(tmpsnr_info_t, fru_info, 0, 0);
OFFSET(tmpsnr_info_t, id, 4, 8);
OFFSET(tmpsnr_info_t, driver_id, 8, 12);
OFFSET(tmpsnr_info_t, ctrl_type, 12, 16);
OFFSET(tmpsnr_info_t, reg_offset, 16, 20);
OFFSET(tmpsnr_info_t, cfpga_id, 17, 21);
OFFSET(tmpsnr_info_t, mux_channel, 18, 22);
OFFSET(tmpsnr_info_t, tmp_index, 19, 23);
OFFSET(tmpsnr_info_t, fru_type, 20, 24);
OFFSET(tmpsnr_info_t, mux, 148, 152);
OFFSET(tmpsnr_info_t, threshold_list, 152, 160);
WIDTH(tmpsnr_info_t, mux, 1);

SIZE(tmpsnr_module_list_t, 16, 32);
OFFSET(tmpsnr_module_list_t, ts_minfo, 0, 0);
OFFSET(tmpsnr_module_list_t, fru_id, 4, 8);
OFFSET(tmpsnr_module_list_t, ts_next, 8, 16);
WIDTH(tmpsnr_module_list_t, fru_id, 4);

SIZE(voltsnr_info_t, 176, 184);
OFFSET(voltsnr_info_t, fru_info, 0, 0);
OFFSET(voltsnr_info_t, id, 4, 8);
OFFSET(voltsnr_info_t, driver_id, 8, 12);
OFFSET(voltsnr_info_t, ctrl_type, 12, 16);
OFFSET(voltsnr_info_t, reg_offset, 16, 20);
OFFSET(voltsnr_info_t, name, 20, 24);
OFFSET(voltsnr_info_t, margin, 148, 152);
OFFSET(voltsnr_info_t, def_voltage, 152, 156);
OFFSET(voltsnr_info_t, conversion_factor, 156, 160);
OFFSET(voltsnr_info_t, cfpga_id, 164, 168);
OFFSET(voltsnr_info_t, mux_addr, 168, 172);
OFFSET(voltsnr_info_t, mux_segment, 172, 176);
WIDTH(voltsnr_info_t, mux_segment, 4);

SIZE(voltsnr_module_list_t, 16, 32);
OFFSET(voltsnr_module_list_t, vs_minfo, 0, 0);
OFFSET(voltsnr_module_list_t, fru_id, 4, 8);
OFFSET(voltsnr_module_list_t, vs_next, 8, 16);
WIDTH(voltsnr_module_list_t, fru_id, 4);

SIZE(led_info_t, 148, 152);
OFFSET(led_info_t, fru_info, 0, 0);
OFFSET(led_info_t, name, 4, 8);
OFFSET(led_info_t, id, 132, 136);
OFFSET(led_info_t, driver_id, 136, 140);
OFFSET(led_info_t, ctrl_type, 140, 144);
OFFSET(led_info_t, led_type, 144, 148);

SIZE(ledlcd_module_list_t, 16, 32);
OFFSET(ledlcd_module_list_t, ll_minfo, 0, 0);
OFFSET(ledlcd_module_list_t, fru_id, 4, 8);
OFFSET(ledlcd_module_list_t, ll_next, 8, 16);
WIDTH(ledlcd_module_list_t, fru_id, 4);

SIZE(lcd_info_t, 148, 152);
OFFSET(lcd_info_t, fru_info, 0, 0);
OFFSET(lcd_info_t, name, 4, 8);
OFFSET(lcd_info_t, id, 132, 136);
OFFSET(lcd_info_t, driver_id, 136, 140);
OFFSET(lcd_info_t, ctrl_type, 140, 144);
OFFSET(lcd_info_t, lcd_type, 144, 148);

SIZE(lcd_module_list_t, 16, 32);
OFFSET(lcd_module_list_t, lcd_minfo, 0, 0);
OFFSET(lcd_module_list_t, fru_id, 4, 8);
OFFSET(lcd_module_list_t, lcd_next, 8, 16);
WIDTH(lcd_module_list_t, fru_id, 4);

SIZE(btn_info_t, 148, 152);
OFFSET(btn_info_t, fru_info, 0, 0);
OFFSET(btn_info_t, name, 4, 8);
OFFSET(btn_info_t, id, 132, 136);
OFFSET(btn_info_t, driver_id, 136, 140);
OFFSET(btn_info_t, ctrl_type, 140, 144);
OFFSET(btn_info_t, button_type, 144, 148);

SIZE(button_module_list_t, 16, 32);
OFFSET(button_module_list_t, btn_minfo, 0, 0);
OFFSET(button_module_list_t, fru_id, 4, 8);
OFFSET(button_module_list_t, btn_next, 8, 16);
WIDTH(button_module_list_t, fru_id, 4);

SIZE(pic_info_t, 152, 160);
OFFSET(pic_info_t, name, 0, 0);
OFFSET(pic_info_t, fru_info, 128, 128);
OFFSET(pic_info_t, id, 132, 136);
OFFSET(pic_info_t, driver_id, 136, 140);
OFFSET(pic_info_t, capablility, 140, 144);
OFFSET(pic_info_t, ctrl_type, 144, 148);
OFFSET(pic_info_t, pic_i2cid, 148, 152);
WIDTH(pic_info_t, pic_i2cid, 1);

SIZE(pic_module_list_t, 16, 32);
OFFSET(pic_module_list_t, pic_minfo, 0, 0);
OFFSET(pic_module_list_t, fru_id, 4, 8);
OFFSET(pic_module_list_t, pic_next, 8, 16);
WIDTH(pic_module_list_t, fru_id, 4);

SIZE(bcm_port_info_t, 80, 88);
OFFSET(bcm_port_info_t, id, 0, 0);
OFFSET(bcm_port_info_t, pic_i2cid, 4, 4);
OFFSET(bcm_port_info_t, fp_port, 8, 8);
OFFSET(bcm_port_info_t, warp_core, 12, 12);
OFFSET(bcm_port_info_t, bw_in_gbps, 16, 16);
OFFSET(bcm_port_info_t, phy_addr, 20, 20);
OFFSET(bcm_port_info_t, rx_lane_map, 24, 24);
OFFSET(bcm_port_info_t, tx_lane_map, 28, 28);
OFFSET(bcm_port_info_t, rx_polarity, 32, 32);
OFFSET(bcm_port_info_t, tx_polarity, 36, 36);
OFFSET(bcm_port_info_t, port_phy_id1, 40, 40);
OFFSET(bcm_port_info_t, link_scan_mode, 44, 44);
OFFSET(bcm_port_info_t, optics_preemph, 48, 48);
OFFSET(bcm_port_info_t, optics_driver, 52, 52);
OFFSET(bcm_port_info_t, optics_predriver, 56, 56);
OFFSET(bcm_port_info_t, dac_preemph, 60, 60);
OFFSET(bcm_port_info_t, dac_driver, 64, 64);
OFFSET(bcm_port_info_t, dac_predriver, 68, 68);
OFFSET(bcm_port_info_t, port_info_next, 72, 72);

SIZE(bcm_chip_info_t, 40, 48);
OFFSET(bcm_chip_info_t, maxlanes, 0, 0);
OFFSET(bcm_chip_info_t, max_uft_entries, 4, 4);
OFFSET(bcm_chip_info_t, max_fp_slices, 8, 8);
OFFSET(bcm_chip_info_t, system_preemph, 12, 12);
OFFSET(bcm_chip_info_t, system_driver, 16, 16);
OFFSET(bcm_chip_info_t, system_predriver, 20, 20);
OFFSET(bcm_chip_info_t, led_program, 24, 24);
OFFSET(bcm_chip_info_t, led_program_len, 28, 28);
OFFSET(bcm_chip_info_t, port_info, 32, 32);

SIZE(asic_info_t, 568, 576);
OFFSET(asic_info_t, name, 0, 0);
OFFSET(asic_info_t, vendor, 128, 128);
OFFSET(asic_info_t, chipid, 256, 256);
OFFSET(asic_info_t, location, 384, 384);
OFFSET(asic_info_t, id, 512, 512);
OFFSET(asic_info_t, base_addr, 516, 516);
OFFSET(asic_info_t, driver_id, 520, 520);
OFFSET(asic_info_t, chip_type, 524, 524);
OFFSET(asic_info_t, bcm_chip_info, 528, 528);

SIZE(asic_module_list_t, 576, 592);
OFFSET(asic_module_list_t, asic_minfo, 0, 0);
OFFSET(asic_module_list_t, asic_next, 568, 576);

SIZE(scpld_bit_mask_info_t, 4, 4);
OFFSET(scpld_bit_mask_info_t, green_bit_mask, 0, 0);
OFFSET(scpld_bit_mask_info_t, green_blink_bit_mask, 1, 1);
OFFSET(scpld_bit_mask_info_t, amber_bit_mask, 2, 2);
OFFSET(scpld_bit_mask_info_t, amber_blink_bit_mask, 3, 3);

SIZE(scpld_info_t, 32, 32);
OFFSET(scpld_info_t, offset, 0, 0);
OFFSET(scpld_info_t, scpld_id, 20, 20);
OFFSET(scpld_info_t, scpld_offset, 21, 21);
OFFSET(scpld_info_t, sfp_reg, 22, 22);
OFFSET(scpld_info_t, scpld_type, 24, 24);
OFFSET(scpld_info_t, bit_mask, 28, 28);
WIDTH(scpld_info_t, sfp_reg, 1);

SIZE(phy_info_t, 12, 12);
OFFSET(phy_info_t, phy_id, 0, 0);
OFFSET(phy_info_t, phy_i2cid, 4, 4);
OFFSET(phy_info_t, phy_type, 8, 8);

SIZE(optics_info_t, 204, 204);
OFFSET(optics_info_t, port_id, 0, 0);
OFFSET(optics_info_t, pic_id, 4, 4);
OFFSET(optics_info_t, op_i2cid, 8, 8);
OFFSET(optics_info_t, fpport, 12, 12);
OFFSET(optics_info_t, chip_id, 16, 16);
OFFSET(optics_info_t, driver_id, 20, 20);
OFFSET(optics_info_t, capabilities, 24, 24);
OFFSET(optics_info_t, location, 28, 28);
OFFSET(optics_info_t, port_type, 156, 156);
OFFSET(optics_info_t, scpld_info, 160, 160);
OFFSET(optics_info_t, phy_info, 192, 192);

SIZE(optics_module_list_t, 212, 224);
OFFSET(optics_module_list_t, optics_minfo, 0, 0);
OFFSET(optics_module_list_t, optics_next, 204, 208);

SIZE(corvane_epm_t, 117, 117);
OFFSET(corvane_epm_t, jedec_15_8, 0, 0);
OFFSET(corvane_epm_t, jedec_7_0, 1, 1);
OFFSET(corvane_epm_t, ideeprom_version, 2, 2);
OFFSET(corvane_epm_t, bitfield, 3, 3);
OFFSET(corvane_epm_t, assembly_id_15_8, 4, 4);
OFFSET(corvane_epm_t, assembly_id_7_0, 5, 5);
OFFSET(corvane_epm_t, major_version, 6, 6);
OFFSET(corvane_epm_t, minor_version, 7, 7);
OFFSET(corvane_epm_t, version_string, 8, 8);
OFFSET(corvane_epm_t, partnumber_string, 20, 20);
OFFSET(corvane_epm_t, serialnumber_string, 32, 32);
OFFSET(corvane_epm_t, assembly_flags, 44, 44);
OFFSET(corvane_epm_t, manufacture_day, 45, 45);
OFFSET(corvane_epm_t, manufacture_month, 46, 46);
OFFSET(corvane_epm_t, manufacture_year_15_8, 47, 47);
OFFSET(corvane_epm_t, manufacture_year_7_0, 48, 48);
OFFSET(corvane_epm_t, reserved_2, 49, 49);
OFFSET(corvane_epm_t, reserved_3, 50, 50);
OFFSET(corvane_epm_t, customer_id, 51, 51);
OFFSET(corvane_epm_t, board_info, 52, 52);
OFFSET(corvane_epm_t, msi_format, 68, 68);
OFFSET(corvane_epm_t, clei_code, 69, 69);
OFFSET(corvane_epm_t, model_number, 79, 79);
OFFSET(corvane_epm_t, model_major_rev, 102, 102);
OFFSET(corvane_epm_t, model_minor_rev, 103, 103);
OFFSET(corvane_epm_t, deviations, 105, 105);
OFFSET(corvane_epm_t, msi_checksum, 115, 115);
OFFSET(corvane_epm_t, serial_no, 116, 116);

SIZE(cepm_data_t, 124, 124);
OFFSET(cepm_data_t, cepm_type, 0, 0);
OFFSET(cepm_data_t, cepm_data, 4, 4);
WIDTH(cepm_data_t, cepm_data, 117);

SIZE(cepm_module_list_t, 132, 144);
OFFSET(cepm_module_list_t, cepm_minfo, 0, 0);
OFFSET(cepm_module_list_t, cepm_next, 124, 128);
WIDTH(cepm_module_list_t, cepm_minfo, 124);

SIZE(resil_error_info_t, 80, 80);
OFFSET(resil_error_info_t, offset, 0, 0);
OFFSET(resil_error_info_t, channel, 1, 1);
OFFSET(resil_error_info_t, threshold, 4, 4);
OFFSET(resil_error_info_t, limit, 8, 8);
OFFSET(resil_error_info_t, persistence, 12, 12);
OFFSET(resil_error_info_t, desc, 13, 13);
WIDTH(resil_error_info_t, channel, 1);
WIDTH(resil_error_info_t, desc, 64);

SIZE(resil_error_list_t, 88, 96);
OFFSET(resil_error_list_t, resil_einfo, 0, 0);
OFFSET(resil_error_list_t, resil_error_next, 80, 80);

SIZE(resil_module_info_t, 72, 72);
OFFSET(resil_module_info_t, mname, 0, 0);
OFFSET(resil_module_info_t, key, 64, 64);
OFFSET(resil_module_info_t, nerrors, 68, 68);

SIZE(resil_module_list_t, 88, 104);
OFFSET(resil_module_list_t, resil_minfo, 0, 0);
OFFSET(resil_module_list_t, resil_errors, 72, 72);
OFFSET(resil_module_list_t, resil_module_next, 80, 88);

SIZE(resil_fru_info_t, 12, 12);
OFFSET(resil_fru_info_t, type, 0, 0);
OFFSET(resil_fru_info_t, id, 4, 4);
OFFSET(resil_fru_info_t, nmodules, 8, 8);

SIZE(resil_fru_list_t, 28, 48);
OFFSET(resil_fru_list_t, resil_finfo, 0, 0);
OFFSET(resil_fru_list_t, resil_modules, 12, 16);
OFFSET(resil_fru_list_t, resil_fru_next, 20, 32);

SIZE(libdst_chs_cinfo_t, 268, 280);
OFFSET(libdst_chs_cinfo_t, chs_info, 0, 0);
OFFSET(libdst_chs_cinfo_t, i2cdev_info_list, 260, 264);
WIDTH(libdst_chs_cinfo_t, chs_info, 260);

SIZE(libdst_chs_info_t, 436, 616);
OFFSET(libdst_chs_info_t, chs_cinfo, 0, 0);
OFFSET(libdst_chs_info_t, fan_info, 268, 280);
OFFSET(libdst_chs_info_t, pem_info, 276, 296);
OFFSET(libdst_chs_info_t, fpc_info, 284, 312);
OFFSET(libdst_chs_info_t, sib_info, 292, 328);
OFFSET(libdst_chs_info_t, fpm_info, 300, 344);
OFFSET(libdst_chs_info_t, ftc_info, 308, 360);
OFFSET(libdst_chs_info_t, cb_info, 316, 376);
OFFSET(libdst_chs_info_t, ts_info, 324, 392);
OFFSET(libdst_chs_info_t, vs_info, 332, 408);
OFFSET(libdst_chs_info_t, ll_info, 340, 424);
OFFSET(libdst_chs_info_t, lcd_info, 348, 440);
OFFSET(libdst_chs_info_t, btn_info, 356, 456);
OFFSET(libdst_chs_info_t, pic_info, 364, 472);
OFFSET(libdst_chs_info_t, fru_info, 372, 488);
OFFSET(libdst_chs_info_t, asic_info, 380, 504);
OFFSET(libdst_chs_info_t, optics_info, 388, 520);
OFFSET(libdst_chs_info_t, frumodel_info, 396, 536);
OFFSET(libdst_chs_info_t, chsmodel_info, 404, 552);
OFFSET(libdst_chs_info_t, cepm_info, 412, 568);
OFFSET(libdst_chs_info_t, resil_info, 420, 584);
OFFSET(libdst_chs_info_t, tib_info, 428, 600);

SIZE(epm_data_init_ops_t, 8, 16);
OFFSET(epm_data_init_ops_t, libchs_epm_data_present_by_type, 0, 0);
OFFSET(epm_data_init_ops_t, libchs_get_epm_data_by_type, 4, 8);

HEAD(adt7470_fan_info_list_t);
HEAD(alarm_list_t);
HEAD(ambient_temp_list_t);
HEAD(asic_info_list_t);
HEAD(button_info_list_t);
HEAD(cb_info_list_t);
HEAD(cepm_data_list_t);
HEAD(fan_info_list_t);
HEAD(fpc_info_list_t);
HEAD(fpm_info_list_t);
HEAD(fru_info_list_t);
HEAD(frumodel_info_list_t);
HEAD(ftc_info_list_t);
HEAD(generic_fan_info_list_t);
HEAD(gfc0812_fan_info_list_t);
HEAD(haskel_9hv0812_fan_info_list_t);
HEAD(i2cdev_info_list_t);
HEAD(lcd_info_list_t);
HEAD(ledlcd_info_list_t);
HEAD(limit_list_t);
HEAD(optics_info_list_t);
HEAD(pelian_fan_syspld_info_list_t);
HEAD(pem_info_list_t);
HEAD(pic_info_list_t);
HEAD(port_info_list_t);
HEAD(resil_error_info_list_t);
HEAD(resil_fru_module_list_t);
HEAD(resil_list_t);
HEAD(sib_info_list_t);
HEAD(sim_alarm_list_t);
HEAD(sim_fru_data_list_t);
HEAD(sim_limit_list_t);
HEAD(sim_ss2rpm_fan_info_list_t);
HEAD(sim_threshold_list_t);
HEAD(ss2rpm_fan_info_list_t);
HEAD(threshold_list_t);
HEAD(tib_info_list_t);
HEAD(tmpsnr_info_list_t);
HEAD(voltsnr_info_list_t);

LINK(libdst_i2cdev_info_t, i2cdev_info_next);
LINK(sim_ss2rpm_fan_info_t, sim_ss2rpm_info_next);
LINK(sim_limit_t, limit_next);
LINK(sim_alarm_info_t, alarm_next);
LINK(sim_tmpsnr_threshold_t, sim_threshold_next);
LINK(sim_fru_data_t, sim_fru_data_next);
LINK(fru_module_list_t, fru_next);
LINK(ambient_temp_t, ambient_temp_next);
LINK(frumodel_module_list_t, frumodel_next);
LINK(ss2rpm_fan_info_t, ss2rpm_info_next);
LINK(adt7470_fan_info_t, fan_info_next);
LINK(gfc0812_fan_info_t, fan_info_next);
LINK(haskel_9hv0812_fan_info_t, fan_info_next);
LINK(pelian_fan_syspld_info_t, fan_info_next);
LINK(fan_module_list_t, fan_next);
LINK(pem_module_list_t, pem_next);
LINK(fpc_module_list_t, fpc_next);
LINK(sib_module_list_t, sib_next);
LINK(fpm_module_list_t, fpm_next);
LINK(ftc_module_list_t, ftc_next);
LINK(cb_module_list_t, cb_next);
LINK(tib_module_list_t, tib_next);
LINK(limit_t, limit_next);
LINK(alarm_info_t, alarm_next);
LINK(tmpsnr_threshold_t, threshold_next);
LINK(tmpsnr_module_list_t, ts_next);
LINK(voltsnr_module_list_t, vs_next);
LINK(ledlcd_module_list_t, ll_next);
LINK(lcd_module_list_t, lcd_next);
LINK(button_module_list_t, btn_next);
LINK(pic_module_list_t, pic_next);
LINK(bcm_port_info_t, port_info_next);
LINK(asic_module_list_t, asic_next);
LINK(optics_module_list_t, optics_next);
LINK(cepm_module_list_t, cepm_next);
LINK(resil_error_list_t, resil_error_next);
LINK(resil_module_list_t, resil_module_next);
LINK(resil_fru_list_t, resil_fru_next);

SIZE(alarm_type_t, 4, 4);
SIZE(btn_type_t, 4, 4);
SIZE(cepm_type_t, 4, 4);
SIZE(chassis_family_t, 4, 4);
SIZE(chip_type_t, 4, 4);
SIZE(ctrl_type_t, 4, 4);
SIZE(fru_aflow_type_t, 4, 4);
SIZE(fru_power_type_t, 4, 4);
SIZE(fru_removable_type_t, 4, 4);
SIZE(fru_type_t, 4, 4);
SIZE(i2cdev_type_t, 4, 4);
SIZE(lcd_type_t, 4, 4);
SIZE(led_type_t, 4, 4);
SIZE(phy_type_t, 4, 4);
SIZE(scpld_type_t, 4, 4);
SIZE(xcvr_type_t, 4, 4);

ENUMERATOR(I2C_TYPE_UNKNOWN, 0);
ENUMERATOR(I2C_TYPE_ADT7470, 1);
ENUMERATOR(I2C_TYPE_PSU, 2);
ENUMERATOR(I2C_TYPE_FPC, 3);
ENUMERATOR(I2C_TYPE_SIB, 4);
ENUMERATOR(I2C_TYPE_FPM, 5);
ENUMERATOR(I2C_TYPE_FTC, 6);
ENUMERATOR(I2C_TYPE_CB, 7);
ENUMERATOR(I2C_TYPE_TMPSNR, 8);
ENUMERATOR(I2C_TYPE_VOLTSNR, 9);
ENUMERATOR(I2C_TYPE_LED, 10);
ENUMERATOR(I2C_TYPE_PIC, 11);
ENUMERATOR(I2C_TYPE_GFC0812, 12);
ENUMERATOR(I2C_TYPE_9HV0812, 13);
ENUMERATOR(I2C_TYPE_MEZZ, 14);
ENUMERATOR(I2C_TYPE_LCD, 15);
ENUMERATOR(I2C_TYPE_MAX, 16);

ENUMERATOR(CTRL_TYPE_UNKNOWN, 0);
ENUMERATOR(CTRL_TYPE_ADT7470, 1);
ENUMERATOR(CTRL_TYPE_FANSYSPLD, 2);
ENUMERATOR(CTRL_TYPE_PSUEPM, 3);
ENUMERATOR(CTRL_TYPE_FPC, 4);
ENUMERATOR(CTRL_TYPE_SIB, 5);
ENUMERATOR(CTRL_TYPE_FPM, 6);
ENUMERATOR(CTRL_TYPE_FTC, 7);
ENUMERATOR(CTRL_TYPE_CB, 8);
ENUMERATOR(CTRL_TYPE_TMP435, 9);
ENUMERATOR(CTRL_TYPE_TMPGENERIC, 10);
ENUMERATOR(CTRL_TYPE_PIC, 11);
ENUMERATOR(CTRL_TYPE_KORVLED, 12);
ENUMERATOR(CTRL_TYPE_QVLBTN, 13);
ENUMERATOR(CTRL_TYPE_CORETEMP, 14);
ENUMERATOR(CTRL_TYPE_GFC0812, 15);
ENUMERATOR(CTRL_TYPE_9HV0812, 16);
ENUMERATOR(CTRL_TYPE_DURNLED, 17);
ENUMERATOR(CTRL_TYPE_TMP432, 18);
ENUMERATOR(CTRL_TYPE_LTC3880, 19);
ENUMERATOR(CTRL_TYPE_GENERICLED, 20);
ENUMERATOR(CTRL_TYPE_LM73, 21);
ENUMERATOR(CTRL_TYPE_ZMBLED, 22);
ENUMERATOR(CTRL_TYPE_CBEPM, 23);
ENUMERATOR(CTRL_TYPE_HWMON, 24);
ENUMERATOR(CTRL_TYPE_HMCTEMP, 25);
ENUMERATOR(CTRL_TYPE_TMP75, 26);
ENUMERATOR(CTRL_TYPE_ADS7830, 27);
ENUMERATOR(CTRL_TYPE_MAX207XX, 28);
ENUMERATOR(CTRL_TYPE_KXCHIPTEMP, 29);
ENUMERATOR(CTRL_TYPE_DS1721, 30);
ENUMERATOR(CTRL_TYPE_MAX6657, 31);
ENUMERATOR(CTRL_TYPE_CPU_CORETMP, 32);
ENUMERATOR(CTRL_TYPE_GENERICLCD, 33);
ENUMERATOR(CTRL_TYPE_WQCHIPTEMP, 34);
ENUMERATOR(CTRL_TYPE_DIETEMP, 35);
ENUMERATOR(CTRL_TYPE_TIB, 36);
ENUMERATOR(CTRL_TYPE_MAX, 37);

ENUMERATOR(CHASSIS_FAMILY_NONE, 0);
ENUMERATOR(CHASSIS_FAMILY_DUMMY, 1);
ENUMERATOR(CHASSIS_FAMILY_KORV, 2);
ENUMERATOR(CHASSIS_FAMILY_PELIAN, 3);
ENUMERATOR(CHASSIS_FAMILY_TIRMOS, 4);
ENUMERATOR(CHASSIS_FAMILY_KUZ, 5);
ENUMERATOR(CHASSIS_FAMILY_KORV_GEN2, 6);
ENUMERATOR(CHASSIS_FAMILY_DURN, 7);
ENUMERATOR(CHASSIS_FAMILY_HASKEL, 8);
ENUMERATOR(CHASSIS_FAMILY_QVL, 9);
ENUMERATOR(CHASSIS_FAMILY_ZMB, 10);
ENUMERATOR(CHASSIS_FAMILY_RQ7100MP, 11);
ENUMERATOR(CHASSIS_FAMILY_BRANNO, 12);
ENUMERATOR(CHASSIS_FAMILY_GV, 13);
ENUMERATOR(CHASSIS_FAMILY_QVL_BRANNO_1RU, 14);
ENUMERATOR(CHASSIS_FAMILY_QVL_BRANNO_3RU, 15);
ENUMERATOR(CHASSIS_FAMILY_TOLMAR, 16);
ENUMERATOR(CHASSIS_FAMILY_MERISOL, 17);
ENUMERATOR(CHASSIS_FAMILY_CALDRE, 18);
ENUMERATOR(CHASSIS_FAMILY_OSTWIN, 19);
ENUMERATOR(CHASSIS_FAMILY_MAX, 20);

ENUMERATOR(FRU_TYPE_UNKNOWN, 0);
ENUMERATOR(FRU_TYPE_CHASSIS, 1);
ENUMERATOR(FRU_TYPE_CPU, 2);
ENUMERATOR(FRU_TYPE_DRAM, 3);
ENUMERATOR(FRU_TYPE_FAN, 4);
ENUMERATOR(FRU_TYPE_PEM, 5);
ENUMERATOR(FRU_TYPE_PIC, 6);
ENUMERATOR(FRU_TYPE_TSENSOR, 7);
ENUMERATOR(FRU_TYPE_VSENSOR, 8);
ENUMERATOR(FRU_TYPE_VOLTMETER, 9);
ENUMERATOR(FRU_TYPE_LED, 10);
ENUMERATOR(FRU_TYPE_BTN, 11);
ENUMERATOR(FRU_TYPE_CRAFT, 12);
ENUMERATOR(FRU_TYPE_FPC, 13);
ENUMERATOR(FRU_TYPE_SIB, 14);
ENUMERATOR(FRU_TYPE_FPM, 15);
ENUMERATOR(FRU_TYPE_FTC, 16);
ENUMERATOR(FRU_TYPE_CB, 17);
ENUMERATOR(FRU_TYPE_SPM, 18);
ENUMERATOR(FRU_TYPE_LCD, 19);
ENUMERATOR(FRU_TYPE_TIB, 20);
ENUMERATOR(FRU_TYPE_MAX, 21);

ENUMERATOR(FRU_REMOVABLE_TYPE_UNKNOWN, 0);
ENUMERATOR(FRU_REMOVABLE_TYPE_FIXED, 1);
ENUMERATOR(FRU_REMOVABLE_TYPE_VIRTUAL, 2);
ENUMERATOR(FRU_REMOVABLE_TYPE_MAX, 3);

ENUMERATOR(FRU_AFLOW_TYPE_NONE, 0);
ENUMERATOR(FRU_AFLOW_TYPE_AFO_FB, 1);
ENUMERATOR(FRU_AFLOW_TYPE_AFI_BF, 2);
ENUMERATOR(FRU_AFLOW_TYPE_UNKNOWN, 3);

ENUMERATOR(FRU_POWER_TYPE_UNKNOWN, 0);
ENUMERATOR(FRU_POWER_TYPE_AC, 1);
ENUMERATOR(FRU_POWER_TYPE_DC, 2);
ENUMERATOR(FRU_POWER_TYPE_MAX, 3);

ENUMERATOR(ALARM_TYPE_SYS_RED, 0);
ENUMERATOR(ALARM_TYPE_SYS_YELLOW, 1);
ENUMERATOR(ALARM_TYPE_BADFAN_RED, 2);
ENUMERATOR(ALARM_TYPE_BADFAN_YELLOW, 3);
ENUMERATOR(ALARM_TYPE_MAX, 4);

ENUMERATOR(LED_TYPE_UNKNOWN, 0);
ENUMERATOR(LED_TYPE_BEACON, 1);
ENUMERATOR(LED_TYPE_SYSTEM, 2);
ENUMERATOR(LED_TYPE_MASTER, 3);
ENUMERATOR(LED_TYPE_ALARM, 4);
ENUMERATOR(LED_TYPE_MAJ_ALARM, 5);
ENUMERATOR(LED_TYPE_MIN_ALARM, 6);
ENUMERATOR(LED_TYPE_POWER, 7);
ENUMERATOR(LED_TYPE_SSD, 8);
ENUMERATOR(LED_TYPE_QIC0_STATUS, 9);
ENUMERATOR(LED_TYPE_QIC1_STATUS, 10);
ENUMERATOR(LED_TYPE_MGMT_P0, 11);
ENUMERATOR(LED_TYPE_MGMT_P1, 12);
ENUMERATOR(LED_TYPE_UPLINK, 13);
ENUMERATOR(LED_TYPE_PHONE_HOME, 14);
ENUMERATOR(LED_TYPE_FTRAY_STATUS, 15);
ENUMERATOR(LED_TYPE_FPC_SYSTEM, 16);
ENUMERATOR(LED_TYPE_HA, 17);
ENUMERATOR(LED_TYPE_EM_SLOT, 18);
ENUMERATOR(LED_TYPE_EXT_SSD0, 19);
ENUMERATOR(LED_TYPE_EXT_SSD1, 20);
ENUMERATOR(LED_TYPE_CLOUD, 21);
ENUMERATOR(LED_TYPE_MAX, 22);

ENUMERATOR(LCD_TYPE_UNKNOWN, 0);
ENUMERATOR(LCD_TYPE_DISPLAY_FP0, 1);
ENUMERATOR(LCD_TYPE_MAX, 2);

ENUMERATOR(BTN_TYPE_UNKNOWN, 0);
ENUMERATOR(BTN_TYPE_POWER, 1);
ENUMERATOR(BTN_TYPE_RESET, 2);
ENUMERATOR(BTN_TYPE_MAX, 3);

ENUMERATOR(SCPLD_TYPE_UNKNOWN, 0);
ENUMERATOR(SCPLD_TYPE_0, 1);
ENUMERATOR(SCPLD_TYPE_1, 2);
ENUMERATOR(SCPLD_TYPE_2, 3);
ENUMERATOR(SCPLD_TYPE_3, 4);
ENUMERATOR(SCPLD_TYPE_4, 5);
ENUMERATOR(SCPLD_TYPE_5, 6);
ENUMERATOR(SCPLD_TYPE_6, 7);
ENUMERATOR(SCPLD_TYPE_7, 8);
ENUMERATOR(SCPLD_TYPE_MAX, 9);

ENUMERATOR(SCPLD_REG_TYPE_UNKNOWN, 0);
ENUMERATOR(SCPLD_REG_TYPE_SFP_CTRL, 1);
ENUMERATOR(SCPLD_REG_TYPE_STS_LED, 2);
ENUMERATOR(SCPLD_REG_TYPE_BLINK_STS_LED, 3);
ENUMERATOR(SCPLD_REG_TYPE_SL_CTRL_STAT4, 4);
ENUMERATOR(SCPLD_REG_TYPE_MAX, 5);

ENUMERATOR(PHY_TYPE_UNKNOWN, 0);
ENUMERATOR(PHY_TYPE_INTERNAL, 1);
ENUMERATOR(PHY_TYPE_MAX, 2);

ENUMERATOR(XCVR_TYPE_UNKNOWN, 0);
ENUMERATOR(XCVR_TYPE_QSFP, 1);
ENUMERATOR(XCVR_TYPE_MAX, 2);

ENUMERATOR(CHIP_TYPE_UNKNOWN, 0);
ENUMERATOR(CHIP_TYPE_5685, 1);
ENUMERATOR(CHIP_TYPE_MAX, 2);

ENUMERATOR(EPM_TYPE_UNKNOWN, 0);
ENUMERATOR(EPM_TYPE_MAINBOARDID, 1);
ENUMERATOR(EPM_TYPE_CPUBOARDID, 2);
ENUMERATOR(EPM_TYPE_MAX, 3);

ENUMERATOR(DST_I2C_DEV_IDX, 0);
ENUMERATOR(DST_FAN_DEV_IDX, 1);
ENUMERATOR(DST_PSU_DEV_IDX, 2);
ENUMERATOR(DST_TMPSNR_DEV_IDX, 3);
ENUMERATOR(DST_LED_DEV_IDX, 4);
ENUMERATOR(DST_PIC_DEV_IDX, 5);
ENUMERATOR(DST_FRU_DEV_IDX, 6);
ENUMERATOR(DST_OPTICS_DEV_IDX, 7);
ENUMERATOR(DST_ASIC_DEV_IDX, 8);
ENUMERATOR(DST_FPC_DEV_IDX, 9);
ENUMERATOR(DST_CB_DEV_IDX, 10);
ENUMERATOR(DST_SIB_DEV_IDX, 11);
ENUMERATOR(DST_FPM_DEV_IDX, 12);
ENUMERATOR(DST_FTC_DEV_IDX, 13);
ENUMERATOR(DST_BTN_DEV_IDX, 14);
ENUMERATOR(DST_VOLTSNR_DEV_IDX, 15);
ENUMERATOR(DST_LCD_DEV_IDX, 16);
ENUMERATOR(DST_TIB_DEV_IDX, 17);
ENUMERATOR(DST_MAX_DEVICE, 18);

COUNT(dst_i2c_type, 17);
COUNT(dst_ctrl_type, 38);
COUNT(dst_fru_type, 22);
COUNT(dst_dev_type, 19);
COUNT(dst_fru_removable_type, 4);
COUNT(dst_asic_chip_type, 3);
COUNT(dst_xcvr_type, 3);
COUNT(dst_phy_type, 3);
COUNT(dst_scpld_type, 10);
COUNT(dst_aflow_type, 4);
COUNT(dst_led_type, 23);
COUNT(dst_lcd_type, 3);
COUNT(dst_btn_type, 4);
COUNT(dst_power_type, 4);
COUNT(dst_chassis_family_type, 21);
COUNT(dst_tmpsnr_thres_alarm_type, 5);

SIZE(chassis_ops_t, 256, 512);
SLOT_AT(0, libc_init);
SLOT_AT(1, libc_release);
SLOT_AT(2, libc_chassis_info_get);
SLOT_AT(3, libc_i2c_dev_info_get_next);
SLOT_AT(4, libc_i2c_dev_info_get_next_by_type);
SLOT_AT(5, libc_i2c_dev_info_by_id);
SLOT_AT(6, libc_fan_info_get_next);
SLOT_AT(7, libc_pem_info_get_next);
SLOT_AT(8, libc_fpc_info_get_next);
SLOT_AT(9, libc_sib_info_get_next);
SLOT_AT(10, libc_fpm_info_get_next);
SLOT_AT(11, libc_ftc_info_get_next);
SLOT_AT(12, libc_cb_info_get_next);
SLOT_AT(13, libc_tib_info_get_next);
SLOT_AT(14, libc_tmpsnr_info_get_next);
SLOT_AT(15, libc_tmpsnr_info_get_by_id);
SLOT_AT(16, libc_voltsnr_info_get_next);
SLOT_AT(17, libc_voltsnr_info_get_by_id);
SLOT_AT(18, libc_led_info_get_next);
SLOT_AT(19, libc_led_info_get_by_id);
SLOT_AT(20, libc_lcd_info_get_next);
SLOT_AT(21, libc_lcd_info_get_by_id);
SLOT_AT(22, libc_btn_info_get_next);
SLOT_AT(23, libc_btn_info_get_by_id);
SLOT_AT(24, libc_fru_info_get_next);
SLOT_AT(25, libc_fru_info_get_next_by_fan);
SLOT_AT(26, libc_fru_info_get_next_by_pem);
SLOT_AT(27, libc_fru_info_get_next_by_fpc);
SLOT_AT(28, libc_fru_info_get_next_by_sib);
SLOT_AT(29, libc_fru_info_get_next_by_fpm);
SLOT_AT(30, libc_fru_info_get_next_by_ftc);
SLOT_AT(31, libc_fru_info_get_next_by_cb);
SLOT_AT(32, libc_fru_info_get_next_by_tib);
SLOT_AT(33, libc_fru_fan_info_get_next);
SLOT_AT(34, libc_fru_pem_info_get_next);
SLOT_AT(35, libc_fru_fpc_info_get_next);
SLOT_AT(36, libc_fru_sib_info_get_next);
SLOT_AT(37, libc_fru_fpm_info_get_next);
SLOT_AT(38, libc_fru_ftc_info_get_next);
SLOT_AT(39, libc_fru_cb_info_get_next);
SLOT_AT(40, libc_fru_tib_info_get_next);
SLOT_AT(41, libc_fru_info_get_by_id);
SLOT_AT(42, libc_pic_info_get_next);
SLOT_AT(43, libc_fru_info_get_next_by_pic);
SLOT_AT(44, libc_fru_pic_info_get_next);
SLOT_AT(45, libc_fru_info_get_next_parent);
SLOT_AT(46, libc_fru_info_get_next_child);
SLOT_AT(47, libc_fru_info_get_id_by_type_slotno);
SLOT_AT(48, libc_epm_data_get_next);
SLOT_AT(49, libc_epm_data_get_by_type);
SLOT_AT(50, libc_chassis_epm_data_init);
SLOT_AT(51, libc_chassis_epm_data_release);
SLOT_AT(52, libc_asic_info_get_next);
SLOT_AT(53, libc_bcm_port_info_get_next);
SLOT_AT(54, libc_bcm_port_info_get_by_port_no);
SLOT_AT(55, libc_bcm_port_info_get_next_by_picid);
SLOT_AT(56, libc_optics_info_get_next);
SLOT_AT(57, libc_optics_info_get_next_by_port_no);
SLOT_AT(58, libc_optics_info_get_next_by_slotno);
SLOT_AT(59, libc_fru_model_info_get_next);
SLOT_AT(60, libc_fru_model_info_get_next_by_type);
SLOT_AT(61, libc_chassis_model_info_get_next);
SLOT_AT(62, libc_resil_fru_get);
SLOT_AT(63, libc_resil_module_list_get_next);
