// The device iterators. A new one: its row in chassis_ops.def, and a function here.
#include "operations.h"
#include "walks.h"

namespace dst {

libdst_chs_info_t *model() {
    static libdst_chs_info_t empty;
    return dst_chs_info ? dst_chs_info : &empty;
}

} // namespace dst

using dst::by_id;
using dst::next;
using dst::same_id;

// I2C devices

i2c_dev_info_t *i2c_dev_info_get_next_priv(i2c_dev_info_t *i2c_info) {
    return next<dst::i2c_devices>(__func__, "Empty i2c device list!", i2c_info);
}

i2c_dev_info_t *i2c_dev_info_get_next_by_type_priv(i2c_dev_info_t *i2c_info, i2cdev_type_t type) {
    const auto of_type = [type](const auto &device) { return device.type == type; };
    return next<dst::i2c_devices>(__func__, "Empty i2c device list!", i2c_info, of_type, same_id);
}

i2c_dev_info_t *i2c_dev_info_by_id_priv(uint32_t id) {
    return by_id<dst::i2c_devices>(__func__, "Empty i2c device list!", id);
}

// Fans, boards and power supplies

fan_info_t *fan_info_get_next_priv(fan_info_t *fan_info) {
    return next<dst::fans>(__func__, "empty fan list!", fan_info);
}

pem_info_t *pem_info_get_next_priv(pem_info_t *pem_info) {
    return next<dst::pems>(__func__, "empty pem list!", pem_info);
}

fpc_info_t *fpc_info_get_next_priv(fpc_info_t *fpc_info) {
    return next<dst::fpcs>(__func__, "empty fpc list!", fpc_info);
}

sib_info_t *sib_info_get_next_priv(sib_info_t *sib_info) {
    return next<dst::sibs>(__func__, "empty sib list!", sib_info);
}

fpm_info_t *fpm_info_get_next_priv(fpm_info_t *fpm_info) {
    return next<dst::fpms>(__func__, "empty fpm list!", fpm_info);
}

ftc_info_t *ftc_info_get_next_priv(ftc_info_t *ftc_info) {
    return next<dst::ftcs>(__func__, "empty ftc list!", ftc_info);
}

cb_info_t *cb_info_get_next_priv(cb_info_t *cb_info) { return next<dst::cbs>(__func__, "empty cb list!", cb_info); }

tib_info_t *tib_info_get_next_priv(tib_info_t *tib_info) {
    return next<dst::tibs>(__func__, "empty tib list!\n", tib_info);
}

// Sensors

tmpsnr_info_t *tmpsnr_info_get_next_priv(tmpsnr_info_t *tmpsnr_info) {
    return next<dst::tmpsnrs>(__func__, "empty temp sensor list!", tmpsnr_info);
}

tmpsnr_info_t *tmpsnr_info_get_by_id_priv(uint32_t tmpsnr_id) {
    return by_id<dst::tmpsnrs>(__func__, "empty temp sensor list!", tmpsnr_id);
}

voltsnr_info_t *voltsnr_info_get_next_priv(voltsnr_info_t *voltsnr_info) {
    return next<dst::voltsnrs>(__func__, "empty volt sensor list!", voltsnr_info);
}

voltsnr_info_t *voltsnr_info_get_by_id_priv(uint32_t voltsnr_id) {
    return by_id<dst::voltsnrs>(__func__, "empty volt sensor list!", voltsnr_id);
}

// Indicators and PICs

led_info_t *led_info_get_next_priv(led_info_t *led_info) {
    return next<dst::leds>(__func__, "empty led list!", led_info);
}

led_info_t *led_info_get_by_id_priv(uint32_t led_id) {
    return by_id<dst::leds>(__func__, "empty led/lcd list!", led_id);
}

lcd_info_t *lcd_info_get_next_priv(lcd_info_t *lcd_info) {
    return next<dst::lcds>(__func__, "empty lcd list!", lcd_info);
}

lcd_info_t *lcd_info_get_by_id_priv(uint32_t id_lcd) { return by_id<dst::lcds>(__func__, "empty lcd list!", id_lcd); }

btn_info_t *btn_info_get_next_priv(btn_info_t *btn_info) {
    return next<dst::btns>(__func__, "empty btn list!", btn_info);
}

btn_info_t *btn_info_get_by_id_priv(uint32_t button_id) {
    return by_id<dst::btns>(__func__, "empty button list!", button_id);
}

pic_info_t *pic_info_get_next_priv(pic_info_t *pic_info) {
    return next<dst::pics>(__func__, "empty pic list!", pic_info);
}

// ASICs and their ports

namespace dst {

// The ports of all ASICs, one after the other.
struct port_iterator {
    asic_module_list_t *asic;
    bcm_port_info_t *port;

    void skip_to_a_port() {
        while (!port && asic) {
            asic = link(asic).tqe_next;
            port = asic ? asic->asic_minfo.bcm_chip_info.port_info.tqh_first : nullptr;
        }
    }
    // NOLINTNEXTLINE(clang-analyzer-core.uninitialized.UndefReturn): never called at the end
    bcm_port_info_t &operator*() const { return *port; }
    port_iterator &operator++() {
        port = link(port).tqe_next;
        skip_to_a_port();
        return *this;
    }
    bool operator==(const port_iterator &other) const { return port == other.port; }
};
struct port_range {
    asic_module_list_t *first;

    port_iterator begin() const {
        port_iterator at{first, first ? first->asic_minfo.bcm_chip_info.port_info.tqh_first : nullptr};
        at.skip_to_a_port();
        return at;
    }
    port_iterator end() const { return {nullptr, nullptr}; }
};
static port_range all_ports() { return {model()->asic_info.tqh_first}; }

} // namespace dst

asic_info_t *asic_info_get_next_priv(asic_info_t *asic_info) {
    return next<dst::asics>(__func__, "empty asic list!", asic_info);
}

bcm_port_info_t *bcm_port_info_get_next_priv(uint32_t asic_dev_id, bcm_port_info_t *info) {
    const asic_info_t *asic = by_id<dst::asics>(__func__, "empty asic list!", asic_dev_id);
    return asic ? dst::next_of(dst::entries(asic->bcm_chip_info.port_info), info, dst::every, same_id) : nullptr;
}

bcm_port_info_t *bcm_port_info_get_by_port_no_priv(uint32_t port_no) {
    const auto has_id = [port_no](const auto &port) { return port.id == port_no; };
    return dst::is_empty<dst::asics>(__func__, "empty asic list!") ? nullptr : dst::first_of(dst::all_ports(), has_id);
}

bcm_port_info_t *bcm_port_info_get_next_by_picid_priv(uint32_t pic_i2c_id, bcm_port_info_t *info) {
    const auto of_pic = [pic_i2c_id](const auto &port) { return port.pic_i2cid == pic_i2c_id; };
    if (dst::is_empty<dst::asics>(__func__, "empty asic list!"))
        return nullptr;
    return dst::next_of(dst::all_ports(), info, of_pic, same_id);
}

// Optics

static constexpr char empty_optics[] = "empty optics list!";
static constexpr auto same_port = [](const auto &a, const auto &b) {
    return a.port_id == b.port_id && a.pic_id == b.pic_id;
};

optics_info_t *optics_info_get_next_priv(optics_info_t *optics_info) {
    return next<dst::optics>(__func__, empty_optics, optics_info, dst::every, same_port);
}

optics_info_t *optics_info_get_next_by_portno_priv(uint32_t port_no, optics_info_t *optics_info) {
    const auto of_port = [port_no](const auto &optic) { return optic.port_id == port_no; };
    return next<dst::optics>(__func__, empty_optics, optics_info, of_port, same_port);
}

optics_info_t *optics_info_get_next_by_slotno_priv(uint32_t slotno, optics_info_t *optics_info) {
    const auto in_slot = [slotno](const auto &optic) { return optic.pic_id == slotno; };
    return next<dst::optics>(__func__, empty_optics, optics_info, in_slot, same_port);
}

// Models

fru_model_info_t *fru_model_info_get_next_priv(const fru_model_info_t *fminfo) {
    return next<dst::fru_models>(__func__, "empty fru model list!", fminfo);
}

fru_model_info_t *fru_model_info_get_next_by_type_priv(const fru_model_info_t *fminfo, fru_type_t ftype) {
    const auto of_type = [ftype](const auto &fru_model) { return fru_model.fru_type == ftype; };
    const auto same_model = [](const auto &a, const auto &b) { return a.id == b.id && a.fru_type == b.fru_type; };
    return next<dst::fru_models>(__func__, "empty fru model list!", fminfo, of_type, same_model);
}

fru_model_info_t *chassis_model_info_get_next_priv(const fru_model_info_t *fminfo) {
    return next<dst::chassis_models>(__func__, "empty chassis model list!", fminfo);
}
