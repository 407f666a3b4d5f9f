// Slot boards and power supplies, single devices: DEVICE types "FPC", "SIB", "FPM", "FTC", "CB" and "PEM", with one
// controller each.
// A new element: its member in libdst.h, its row in BOARD_ELEMENTS and its handler's name in each board, the dump
// and the schema, a case. A new board: its records in libdst.h, their rows in records.h and kinds.h, its SLOT_BOARD
// here.
#include "patterns.h"
#include "readers.h"

#define BOARD_ELEMENTS(ROW, T, board, held, name_op, fruid_op, driverid_op)                                            \
    ROW(T, FIELD, "NAME", name_op, libdst_parse_tag_string, held->name)                                                \
    ROW(T, FRUID, "FRUID", fruid_op, board)                                                                            \
    ROW(T, FIELD, "DRIVERID", driverid_op, libdst_parse_tag_uint32, held->driver_id)

#define SLOT_BOARD(board, kind, held, word, ctrl, type, device_op, id_attr_op, parser_t, elements, name_op, fruid_op,  \
                   driverid_op, per_tag, controllers, controller_op)                                                   \
    static int id_attr_op(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }                            \
    struct board : dst::family<kind> {                                                                                 \
        static constexpr dst::family_words words{word, word, word, word, "failed in parsing " word " tag!"};           \
        static constexpr auto id_attr = id_attr_op;                                                                    \
    };                                                                                                                 \
    using parser_t = dst::tag_entry<kind::entry_t>;                                                                    \
    BOARD_ELEMENTS(DST_HANDLER, kind::entry_t, board, held, name_op, fruid_op, driverid_op)                            \
    static const parser_t elements[] = {                                                                               \
        BOARD_ELEMENTS(DST_ENTRY, kind::entry_t, board, held, name_op, fruid_op, driverid_op){nullptr, nullptr}};      \
    static int per_tag(xmlDocPtr doc, xmlNodePtr device, kind::entry_t *node) {                                        \
        return dst::walk(__func__, elements, doc, device, node, board::words.walk);                                    \
    }                                                                                                                  \
    DST_HANDLER_CTRL(kind::entry_t, ctrl, controller_op, board, type, per_tag)                                         \
    static const parser_t controllers[] = {{ctrl, controller_op}, {nullptr, nullptr}};                                 \
    int device_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {                                        \
        return dst::read_device<board>(__func__, controllers, doc, device, model);                                     \
    }

SLOT_BOARD(fpc, dst::fpcs, fpc_minfo, "fpc", "FPC", CTRL_TYPE_FPC, libdst_dev_fpc_op, libdst_dev_fpc_id_attr,
           xml_tag_parser_fpcinfo_t, dst_tag_fpcinfo_op, libdst_dev_fpc_name_tag_op, libdst_dev_fpc_fruid_tag_op,
           libdst_dev_fpc_driverid_tag_op, libdst_dev_fpc_per_tag, dst_tag_fpc_op, libdst_dev_fpc_generic_op)

SLOT_BOARD(sib, dst::sibs, sib_minfo, "sib", "SIB", CTRL_TYPE_SIB, libdst_dev_sib_op, libdst_dev_sib_id_attr,
           xml_tag_parser_sibinfo_t, dst_tag_sibinfo_op, libdst_dev_sib_name_tag_op, libdst_dev_sib_fruid_tag_op,
           libdst_dev_sib_driverid_tag_op, libdst_dev_sib_per_tag, dst_tag_sib_op, libdst_dev_sib_sibgeneric_op)

SLOT_BOARD(fpm, dst::fpms, fpm_minfo, "fpm", "FPM", CTRL_TYPE_FPM, libdst_dev_fpm_op, libdst_dev_fpm_id_attr,
           xml_tag_parser_fpminfo_t, dst_tag_fpminfo_op, libdst_dev_fpm_name_tag_op, libdst_dev_fpm_fruid_tag_op,
           libdst_dev_fpm_driverid_tag_op, libdst_dev_fpm_per_tag, dst_tag_fpm_op, libdst_dev_fpm_fpmgeneric_op)

SLOT_BOARD(ftc, dst::ftcs, ftc_minfo, "ftc", "FTC", CTRL_TYPE_FTC, libdst_dev_ftc_op, libdst_dev_ftc_id_attr,
           xml_tag_parser_ftcinfo_t, dst_tag_ftcinfo_op, libdst_dev_ftc_name_tag_op, libdst_dev_ftc_fruid_tag_op,
           libdst_dev_ftc_driverid_tag_op, libdst_dev_ftc_per_tag, dst_tag_ftc_op, libdst_dev_ftc_ftcgeneric_op)

SLOT_BOARD(cb, dst::cbs, cb_minfo, "cb", "CB", CTRL_TYPE_CB, libdst_dev_cb_op, libdst_dev_cb_id_attr,
           xml_tag_parser_cbinfo_t, dst_tag_cbinfo_op, libdst_dev_cb_name_tag_op, libdst_dev_cb_fruid_tag_op,
           libdst_dev_cb_driverid_tag_op, libdst_dev_cb_per_tag, dst_tag_cb_op, libdst_dev_cb_generic_op)

SLOT_BOARD(pem, dst::pems, pem_minfo, "pem", "PSUEPM", CTRL_TYPE_PSUEPM, libdst_dev_psu_op, libdst_dev_psu_id_attr,
           xml_tag_parser_peminfo_t, dst_tag_peminfo_op, libdst_dev_psu_name_tag_op, libdst_dev_psu_fruid_tag_op,
           libdst_dev_psu_driverid_tag_op, libdst_dev_psu_per_tag, dst_tag_pem_op, libdst_dev_psu_psuepm_op)
