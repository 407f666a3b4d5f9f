// Root keys "FRUMODEL" and "CHSMODEL": FRU models and chassis models, the same records.
// A new key: its member in libdst.h, its line here and in the dump, a case.
#include "readers.h"

static ambient_temp_t *libconfig_dev_ambient_data_read(void *handle) {
    return dst::read_record<ambient_temp_t>([=](auto &row) {
        dst::int_key(handle, "AMBIENT_TEMPERATURE", row.temperature);
        dst::int_key(handle, "AMBIENT_FRU_POWER", row.max_power);
        dst::int_key(handle, "AMBIENT_FRU_MIC_POWER", row.mic_max_power);
        dst::int_key(handle, "AMBIENT_FRU_BANDWIDTH", row.bandwidth);
    });
}
DST_LIST_READER(static, libconfig_dev_ambient_data_get, libconfig_dev_ambient_data_read, fru_model_info_t,
                ambient_temp_info)

static frumodel_module_list_t *libconfig_frumodel_data_read(void *handle) {
    return dst::read_record<frumodel_module_list_t>([=](auto &node) {
        fru_model_info_t &model = node.frumodel_minfo;
        dst::list_init(model.ambient_temp_info);
        dst::int_key(handle, "id", model.id);
        dst::int_key(handle, "ASSEMBLYID", model.asm_id);
        dst::int_key(handle, "POWER_RATING", model.power_rating);
        dst::int_key(handle, "PEAK_POWER", model.peak_power);
        dst::int_key(handle, "NFANS", model.nfans);
        dst::flag_key(handle, "PEM_INPSW_ACT", model.pem_inpsw_act);
        dst::optional_kind_key(handle, "PEMTYPE", dst_power_type, FRU_POWER_TYPE_MAX, model.power_type);
        dst::optional_kind_key(handle, "AIRFLOWTYPE", dst_aflow_type, FRU_AFLOW_TYPE_UNKNOWN, model.aflow_type);
        dst::kind_key(handle, "Type", dst_fru_type, FRU_TYPE_MAX, model.fru_type);
        dst::text_key(handle, "PARTNO", model.part_number);
        dst::text_key(handle, "NAME", model.name);
        dst::text_key(handle, "DESC", model.desc);
        dst::text_key(handle, "FRUDESC", model.fru_desc);
        brio_config_subtree_get(handle, "AMBIENT_TEMP_DATA", &model, libconfig_dev_ambient_data_get);
        dst::flag_key(handle, "FRUEMP", model.fru_level_empolicy);
        dst::int_key(handle, "DRIVERID", model.driverid);
        if (const char *text = dst::text_of(handle, "FRU_ENH_TEMPTHRESHOLD"))
            model.enh_temp_threshold = std::strncmp(text, "true", 4) == 0; // a text that begins so suffices
        dst::int_key(handle, "MIN_FAN_SPEED_PERCENT", model.min_fan_speed);
        dst::int_key(handle, "NFEEDS", model.nfeeds);
    });
}

// FRU models: there must be one.

static brio_cfg_status_t libconfig_frumodel_model_arrayread(void *handle, void *data) {
    auto &models = static_cast<libdst_chs_info_t *>(data)->frumodel_info;
    dst::read_list<libconfig_frumodel_data_read>(handle, models);
    return models.tqh_first ? BRIO_CONFIG_SUCCESS : static_cast<brio_cfg_status_t>(-1);
}

static brio_cfg_status_t libconfig_frumodel_model_read(void *handle, void *data) {
    return brio_config_subtree_get(handle, "MODEL", data, libconfig_frumodel_model_arrayread);
}

int libconfig_frumodel_tag_op(void *handle, const char *tag, libdst_chs_info_t *info) {
    return brio_config_subtree_get(handle, tag, info, libconfig_frumodel_model_read);
}

// Chassis models: the list may be empty, but not missing.

DST_LIST_READER(static, libconfig_chsmodel_frumodel_model_read, libconfig_frumodel_data_read, libdst_chs_info_t,
                chsmodel_info)

static brio_cfg_status_t libconfig_chsmodel_frumodel_op(void *handle, void *data) {
    return brio_config_subtree_get(handle, "MODEL", data, libconfig_chsmodel_frumodel_model_read);
}

int libconfig_chsmodel_tag_op(void *handle, const char *tag, libdst_chs_info_t *info) {
    dst::list_init(info->chsmodel_info);
    const int rc = brio_config_subtree_get(handle, tag, info, libconfig_chsmodel_frumodel_op);
    if (rc != 0)
        dst::release_member(info->chsmodel_info);
    return rc;
}
