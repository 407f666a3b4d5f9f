// Temperature thresholds, of sensors and of simulated FRUs: two sets of records with the same shape, whose readers a
// host may call.
// A new key: its member in libdst.h (in both records), its line here and in the dump, a case.
#include "chsinfo/libdst_priv.h"
#include "readers.h"

namespace dst {

template <class Limit> static Limit *read_limit(void *handle) {
    return read_record<Limit>([=](auto &limit) {
        limit.fan_step_id = -1;
        int_key(handle, "id", limit.id);
        int_key(handle, "TEMP", limit.temp);
        int_key(handle, "FANSTEPID", limit.fan_step_id);
    });
}

template <class Alarm> static Alarm *read_alarm(void *handle) {
    return read_record<Alarm>([=](auto &alarm) {
        int_key(handle, "id", alarm.id);
        int_key(handle, "LIMIT", alarm.alarm);
        kind_key(handle, "Type", dst_tmpsnr_thres_alarm_type, ALARM_TYPE_MAX, alarm.type);
    });
}

// The keys that differ between the two sets; no `name`: the threshold has none.
struct threshold_keys {
    const char *fire, *name, *limits, *alarms;
};

template <class Threshold>
static Threshold *read_threshold(void *handle, const threshold_keys &keys, brio_config_get_fn_t limits_reader,
                                 brio_config_get_fn_t alarms_reader) {
    return read_record<Threshold>([&](auto &threshold) {
        list_init(threshold.alarm_list);
        list_init(threshold.limit_list);
        int_key(handle, "id", threshold.id);
        int_key(handle, "Type", threshold.aflow_type);
        int_key(handle, keys.fire, threshold.fire);
        if (keys.name)
            text_key(handle, keys.name, threshold.name);
        brio_config_subtree_get(handle, keys.limits, &threshold, limits_reader);
        brio_config_subtree_get(handle, keys.alarms, &threshold, alarms_reader);
    });
}

} // namespace dst

// Of sensors

limit_t *libconfig_config_tmp_thres_limit_data_read(void *handle) { return dst::read_limit<limit_t>(handle); }
DST_LIST_READER(, libconfig_config_tmp_threshold_limit_read, libconfig_config_tmp_thres_limit_data_read,
                tmpsnr_threshold_t, limit_list)

alarm_info_t *libconfig_config_tmp_thres_alarm_data_read(void *handle) { return dst::read_alarm<alarm_info_t>(handle); }
DST_LIST_READER(, libconfig_config_tmp_threshold_alarm_read, libconfig_config_tmp_thres_alarm_data_read,
                tmpsnr_threshold_t, alarm_list)

tmpsnr_threshold_t *libconfig_config_tmp_threshold_elem_read(void *handle) {
    return dst::read_threshold<tmpsnr_threshold_t>(handle, {"FIRE", "NAME", "LIMIT", "ALARM"},
                                                   libconfig_config_tmp_threshold_limit_read,
                                                   libconfig_config_tmp_threshold_alarm_read);
}
DST_LIST_READER(, libconfig_config_tmp_threshold_get, libconfig_config_tmp_threshold_elem_read, tmpsnr_module_list_t,
                ts_minfo->threshold_list)

// Of simulated FRUs

sim_limit_t *libconfig_config_sim_tmp_thres_limit_data_read(void *handle) {
    return dst::read_limit<sim_limit_t>(handle);
}
DST_LIST_READER(, libconfig_config_sim_tmp_threshold_limit_read, libconfig_config_sim_tmp_thres_limit_data_read,
                sim_tmpsnr_threshold_t, limit_list)

sim_alarm_info_t *libconfig_config_sim_tmp_thres_alarm_data_read(void *handle) {
    return dst::read_alarm<sim_alarm_info_t>(handle);
}
DST_LIST_READER(, libconfig_config_sim_tmp_threshold_alarm_read, libconfig_config_sim_tmp_thres_alarm_data_read,
                sim_tmpsnr_threshold_t, alarm_list)

sim_tmpsnr_threshold_t *libconfig_config_sim_tmp_threshold_elem_read(void *handle) {
    return dst::read_threshold<sim_tmpsnr_threshold_t>(handle, {"SIM_FIRE", nullptr, "SIM_LIMIT", "SIM_ALARM"},
                                                       libconfig_config_sim_tmp_threshold_limit_read,
                                                       libconfig_config_sim_tmp_threshold_alarm_read);
}
DST_LIST_READER(, libconfig_config_sim_tmp_threshold_get, libconfig_config_sim_tmp_threshold_elem_read, sim_fru_data_t,
                sim_ts_threshold)
