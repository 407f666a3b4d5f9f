// The start of a chassis-management daemon as in inventory.c, with the ranges of libdst.hpp.
//
//     c++ -std=c++20 inventory.cpp $(pkg-config --cflags --libs libdst) -o inventory
#include <chsinfo/libdst.hpp>
#include <iostream>
#include <string>

static std::ostream &line(std::size_t depth) { return std::cout << std::string(depth, ' '); }

static void print_board(std::size_t depth, const auto &board) {
    line(depth) << "board " << board.name << ": controller " << dst::name(board.ctrl_type) << ", driver "
                << board.driver_id << '\n';
}

static void print(std::size_t depth, auto boards) {
    for (const auto &board : boards)
        print_board(depth, board);
}

static void print_trays(std::size_t depth, const fru_info_t &fru) {
    for (const fan_info_t &tray : dst::fans(fru)) {
        print_board(depth, tray);
        dst::visit_module(tray, [depth](const auto &module) {
            for (const auto &fan : dst::fans(module))
                line(depth + 2) << "fan " << fan.fan_id << ": " << fan.name << '\n';
        });
    }
}

static void print_leds(std::size_t depth, const fru_info_t &fru) {
    for (const led_info_t &led : dst::leds(fru))
        line(depth) << "shows " << dst::name(led.led_type) << ": controller " << dst::name(led.ctrl_type) << '\n';
}

// Boards, power supplies, fan trays and LEDs. Asking for the kind that the FRU is keeps the log free of empty lists.
static void print_boards(std::size_t depth, const fru_info_t &fru) {
    switch (fru.fru_type) {
    case FRU_TYPE_FAN:
        return print_trays(depth, fru);
    case FRU_TYPE_LED:
        return print_leds(depth, fru);
    case FRU_TYPE_PEM:
        return print(depth, dst::pems(fru));
    case FRU_TYPE_PIC:
        return print(depth, dst::pics(fru));
    case FRU_TYPE_FPC:
        return print(depth, dst::fpcs(fru));
    case FRU_TYPE_SIB:
        return print(depth, dst::sibs(fru));
    case FRU_TYPE_FPM:
        return print(depth, dst::fpms(fru));
    case FRU_TYPE_FTC:
        return print(depth, dst::ftcs(fru));
    case FRU_TYPE_CB:
        return print(depth, dst::cbs(fru));
    case FRU_TYPE_TIB:
        return print(depth, dst::tibs(fru));
    default:
        break;
    }
}

static void print_threshold(std::size_t depth, const tmpsnr_threshold_t &threshold) {
    line(depth) << dst::name(threshold.aflow_type) << ':';
    for (const limit_t &limit : dst::limits(threshold))
        std::cout << " fan step " << limit.fan_step_id << " at " << limit.temp << ',';
    for (const alarm_info_t &alarm : dst::alarms(threshold))
        std::cout << ' ' << dst::name(alarm.type) << " at " << alarm.alarm << ',';
    std::cout << " fire at " << threshold.fire << '\n';
}

static void print_sensors(std::size_t depth, const fru_info_t &fru) {
    for (const tmpsnr_info_t &sensor : dst::temperature_sensors(fru)) {
        line(depth) << "temperature sensor " << sensor.id << ": controller " << dst::name(sensor.ctrl_type) << '\n';
        for (const tmpsnr_threshold_t &threshold : dst::thresholds(sensor))
            print_threshold(depth + 2, threshold);
    }
    for (const voltsnr_info_t &sensor : dst::voltage_sensors(fru))
        line(depth) << "voltage sensor " << sensor.name << ": controller " << dst::name(sensor.ctrl_type)
                    << ", default " << sensor.def_voltage << ", margin " << sensor.margin << '\n';
}

// In columns, two a level: descriptions may nest FRUs as deep as they like, and the stack is only so large.
static constexpr std::size_t deepest = 40;

// The walks over FRU relatives log their end as an error, also when all is well. They go by id: where ids repeat, a FRU
// is given as its own child, or as the child of another, so the pointer decides.
static void print_fru(std::size_t depth, const fru_info_t &fru) {
    line(depth) << fru.name << ": " << dst::name(fru.fru_type) << " in slot " << int{fru.slot} << '\n';
    print_boards(depth + 2, fru);
    print_sensors(depth + 2, fru);
    if (depth < deepest)
        for (const fru_info_t &child : dst::children(fru))
            if (child.parent == &fru)
                print_fru(depth + 2, child);
}

int main() {
    if (libchs_init() < 0)
        return 1; // the log says why
    std::cout << "inventory of a " << dst::name(libchs_chassis_info_get()->family) << " chassis\n";
    for (const fru_info_t &fru : dst::top_level_frus())
        print_fru(0, fru);
    libchs_release();
}
