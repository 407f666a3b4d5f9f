/* A host that supplies the identification EEPROMs of the main board and the CPU board. libchs_init() asks for them once
 * the description is loaded, so its queries tell where they are.
 *
 *     cc epm.c $(pkg-config --cflags --libs libdst) -o epm */
#include <chsinfo/libdst.h>
#include <stdio.h>

/* The EEPROM of the chassis, or of the first CB, as the system shows it; null where there is none. */
static FILE *open_eeprom(cepm_type_t board) {
    const fru_type_t type = board == EPM_TYPE_MAINBOARDID ? FRU_TYPE_CHASSIS : FRU_TYPE_CB;
    uint32_t id;
    if (libdst_fru_info_get_id_by_type_slotno(type, 0, &id) < 0)
        return NULL;
    const i2c_dev_info_t *device = libchs_fru_info_get_by_id(id)->i2cdev;
    if (!device)
        return NULL;
    char path[sizeof device->syspath + sizeof "/eeprom"];
    snprintf(path, sizeof path, "%s/eeprom", device->syspath);
    return fopen(path, "rb");
}

static bool present(cepm_type_t board) {
    FILE *eeprom = open_eeprom(board);
    return eeprom && fclose(eeprom) == 0;
}

/* A negative result fails libchs_init() and empties the list of EPM records; the model stays until libchs_release(). */
static int fill(cepm_data_t *epm, cepm_type_t board) {
    FILE *eeprom = open_eeprom(board);
    if (!eeprom)
        return -1;
    const bool whole = fread(&epm->cepm_data, sizeof epm->cepm_data, 1, eeprom) == 1;
    fclose(eeprom);
    epm->cepm_type = board; /* what the queries find it by */
    return whole ? 0 : -1;
}

/* The texts of an image need not end in a NUL byte. */
static void print_text(const char *name, const uint8_t *text, size_t size) {
    printf(", %s ", name);
    for (size_t i = 0; i < size && text[i]; ++i)
        putchar(text[i]);
}

int main(void) {
    epm_null_ops.libchs_epm_data_present_by_type = present;
    epm_null_ops.libchs_get_epm_data_by_type = fill;
    const int status = libchs_init();
    for (cepm_data_t *epm = libchs_epm_data_get_next(NULL); epm; epm = libchs_epm_data_get_next(epm)) {
        const corvane_epm_t *image = &epm->cepm_data;
        printf("%s board: assembly 0x%02x%02x", epm->cepm_type == EPM_TYPE_MAINBOARDID ? "main" : "CPU",
               image->assembly_id_15_8, image->assembly_id_7_0);
        print_text("part", image->partnumber_string, sizeof image->partnumber_string);
        print_text("serial number", image->serialnumber_string, sizeof image->serialnumber_string);
        putchar('\n');
    }
    libchs_release();
    return status < 0;
}
