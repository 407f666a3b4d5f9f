/* Prints what the sample holds, read through every operation. Usage: client FILE SIMULATION_FOLDER */
#include <brio_config.h>
#include <stdio.h>
#include <stdlib.h>

static void misused(const char *error_str, int error_line) {
    fprintf(stderr, "%s, line %d\n", error_str, error_line);
    abort();
}

static brio_cfg_status_t print_limits(void *handle, void *context) {
    int32_t low, high;
    if (brio_config_int_read(handle, "low", &low) || brio_config_int_read(handle, "high", &high))
        return BRIO_CONFIG_FAIL;
    printf("%s: %d to 0x%X\n", (const char *)context, low, (unsigned)high);
    return BRIO_CONFIG_SUCCESS;
}

static void *name_of(void *handle) {
    const char *name;
    brio_config_str_read(handle, "name", &name);
    return (void *)name;
}

static void *same(void *handle) { return handle; }

static brio_cfg_status_t print_fru(void *handle, void *context) {
    int32_t id;
    const brio_cfg_status_t status = brio_config_int_read(handle, "id", &id);
    if (status == BRIO_CONFIG_SUCCESS)
        printf("FRU %d: %s\n", id, *(const char **)context = name_of(handle));
    return status;
}

int main(int argc, char **argv) {
    if (argc != 3 || brio_config_init(argv[1], 0, argv[2], misused) != BRIO_CONFIG_SUCCESS)
        return 1;
    void *chassis = brio_config_handle_get("CHASSIS");
    int32_t version;
    const char *text;
    double scale;
    if (brio_config_int_read(chassis, "VERSION", &version) || brio_config_str_read(chassis, "FAMILY", &text) ||
        brio_config_float_read(chassis, "SCALE", &scale) ||
        brio_config_subtree_get(chassis, "LIMITS", "limits", print_limits))
        return 1;
    printf("version %d, %s, scale %g\n", version, text, scale);
    for (int i = 0; brio_config_array_element_get(chassis, "FRUS", i, &text, print_fru) == BRIO_CONFIG_SUCCESS; ++i)
        ;
    printf("the last was %s\n", text);

    void *array, *name;
    int address;
    if (brio_config_subtree_read(chassis, "MC_MUXADDR", &array, same))
        return 1;
    for (int i = 0; brio_config_array_int_read(array, i, &address) == BRIO_CONFIG_SUCCESS; ++i)
        printf("address 0x%X\n", (unsigned)address);
    if (brio_config_subtree_read(chassis, "FRUS", &array, same) ||
        brio_config_array_element_read(array, 0, &name, name_of))
        return 1;
    printf("the first is %s\n", (const char *)name);

    void *simulated = brio_config_handle_sim_get("CHASSIS");
    if (brio_config_subtree_read(simulated, "PRESENT", &array, same) || brio_config_array_int_read(array, 0, &address))
        return 1;
    printf("simulated: %d\n", address);
    return 0;
}
