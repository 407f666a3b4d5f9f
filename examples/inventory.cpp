// The start of a chassis-management daemon as in inventory.c, with the ranges of libdst.hpp.
//
//     c++ -std=c++20 inventory.cpp $(pkg-config --cflags --libs libdst) -o inventory
#include <chsinfo/libdst.hpp>
#include <iostream>
#include <string>

static std::ostream &line(int depth) { return std::cout << std::string(depth, ' '); }

static void print(int depth, auto boards) {
    for (const auto &board : boards)
        line(depth) << "board " << board.name << ": controller " << dst::name(board.ctrl_type) << ", driver "
                    << board.driver_id << '\n';
}

// Boards, power supplies and fan trays. Asking for the kind that the FRU is keeps the log free of empty lists.
static void print_boards(int depth, const fru_info_t &fru) {
    switch (fru.fru_type) {
    case FRU_TYPE_FAN:
        return print(depth, dst::fans(fru));
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

static void print_threshold(int depth, const tmpsnr_threshold_t &threshold) {
    line(depth) << dst::name(threshold.aflow_type) << ':';
    for (const limit_t *limit = threshold.limit_list.tqh_first; limit; limit = limit->limit_next.tqe_next)
        std::cout << " fan step " << limit->fan_step_id << " at " << limit->temp << ',';
    for (const alarm_info_t *alarm = threshold.alarm_list.tqh_first; alarm; alarm = alarm->alarm_next.tqe_next)
        std::cout << ' ' << dst::name(alarm->type) << " at " << alarm->alarm << ',';
    std::cout << " fire at " << threshold.fire << '\n';
}

static void print_sensors(int depth, const fru_info_t &fru) {
    for (const tmpsnr_info_t &sensor : dst::temperature_sensors()) {
        if (sensor.fru_info != &fru)
            continue;
        line(depth) << "temperature sensor " << sensor.id << ": controller " << dst::name(sensor.ctrl_type) << '\n';
        for (const auto *threshold = sensor.threshold_list.tqh_first; threshold;
             threshold = threshold->threshold_next.tqe_next)
            print_threshold(depth + 2, *threshold);
    }
    for (const voltsnr_info_t &sensor : dst::voltage_sensors())
        if (sensor.fru_info == &fru)
            line(depth) << "voltage sensor " << sensor.name << ": controller " << dst::name(sensor.ctrl_type)
                        << ", default " << sensor.def_voltage << ", margin " << sensor.margin << '\n';
}

// The walks over FRU relatives log their end as an error, also when all is well.
static void print_fru(int depth, fru_info_t &fru) {
    line(depth) << fru.name << ": " << dst::name(fru.fru_type) << " in slot " << int{fru.slot} << '\n';
    print_boards(depth + 2, fru);
    print_sensors(depth + 2, fru);
    for (fru_info_t &child : dst::children(fru))
        print_fru(depth + 2, child);
}

int main() {
    if (libchs_init() < 0)
        return 1; // the log says why
    std::cout << "inventory of a " << dst::name(libchs_chassis_info_get()->family) << " chassis\n";
    for (fru_info_t &fru : dst::top_level_frus())
        print_fru(0, fru);
    libchs_release();
}
