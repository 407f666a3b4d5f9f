// The dump of FRU models, chassis models and resiliency data.
#include "sections.h"

namespace dst {

static constexpr leaf<fru_model_info_t> model_leaves[] = {
    {"PARTNO", [](const auto &m) { return text(m.part_number); }},
    {"ASSEMBLYID", [](const auto &m) { return hex(m.asm_id); }},
    {"NAME", [](const auto &m) { return text(m.name); }},
    {"DESC", [](const auto &m) { return text(m.desc); }},
};

// Shown of a chassis model only.
static constexpr leaf<fru_model_info_t> chassis_model_leaves[] = {
    {"AIRFLOWTYPE", [](const auto &m) { return name(dst_aflow_type, m.aflow_type); }},
    {"PEMTYPE", [](const auto &m) { return name(dst_power_type, m.power_type); }},
};

static constexpr leaf<resil_module_info_t> resil_module_leaves[] = {
    {"KEY", [](const auto &m) { return bare_hex(m.key); }},
    {"NERRORS", [](const auto &m) { return dec(m.nerrors); }},
    {"MNAME", [](const auto &m) { return text(m.mname); }},
};

static constexpr leaf<resil_error_info_t> resil_error_leaves[] = {
    {"OFFSET", [](const auto &e) { return bare_hex(e.offset); }},
    {"CHANNEL", [](const auto &e) { return dec(e.channel); }},
    {"THRESHOLD", [](const auto &e) { return dec(e.threshold); }},
    {"LIMIT", [](const auto &e) { return dec(e.limit); }},
    {"PERSIST", [](const auto &e) { return dec(e.persistence); }},
    {"DESC", [](const auto &e) { return text(e.desc); }},
};

static value model_type(const fru_model_info_t &model) { return name(dst_fru_type, model.fru_type); }

void print_fru_models(libdst_chs_info_t *model) {
    print_wrapped("FRUMODEL", {}, records<fru_models>(model),
                  [](const fru_model_info_t &one) { print_record(8, "MODEL", model_type(one), model_leaves, one); });
}

void print_chassis_models(libdst_chs_info_t *model) {
    for (const fru_model_info_t &one : records<chassis_models>(model)) {
        print_open(4, "MODEL", {{"id", dec(one.id)}, {"type", model_type(one)}});
        print_leaves(8, model_leaves, one);
        print_leaves(8, chassis_model_leaves, one);
        print_close(4, "MODEL");
    }
}

// The leaves stand as deep as their element.
static void print_resil_module(const resil_module_list_t &module) {
    print_open(12, "MODULE");
    print_leaves(12, resil_module_leaves, module.resil_minfo);
    for (const resil_error_list_t &error : entries(module.resil_errors)) {
        print_open(16, "ERRORS");
        print_leaves(16, resil_error_leaves, error.resil_einfo);
        print_close(16, "ERRORS");
    }
    print_close(12, "MODULE");
}

void print_resiliency(libdst_chs_info_t *model) {
    print_wrapped("RESILMODEL", {}, entries(model->resil_info), [](const resil_fru_list_t &fru) {
        const resil_fru_info_t &info = fru.resil_finfo;
        print_open(8, "FRU", {{"Type", name(dst_fru_type, info.type)}, {"ASSEMBLYID", hex(info.id)}});
        for (const resil_module_list_t &module : entries(fru.resil_modules))
            print_resil_module(module);
        print_close(8, "FRU");
    });
}

} // namespace dst
