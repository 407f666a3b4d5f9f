/* The interface between the folders of the library: the operations table and the readers' entry points.
 * Installed for hosts that exchange an operation, and for tests; libdst.h is the interface for everyone else. */
#ifndef CHSINFO_LIBDST_PRIV_H
#define CHSINFO_LIBDST_PRIV_H

#include <brio_config.h>

#include "libdst.h"

#ifdef __cplusplus
extern "C" {
#endif

/** The operations behind the exported functions, one slot each (see chassis_ops.def). A null slot is an operation that
 * is not provided: its wrapper answers null, or -1 where the result is an int. */
typedef struct _chassis_ops_s {
#define SLOT(result, slot, operation, parameters) result(*slot) parameters;
#define QUERY(result, slot, operation, wrapper, parameters, arguments) SLOT(result, slot, operation, parameters)
#include "chassis_ops.def"
#undef QUERY
#undef SLOT
} chassis_ops_t;

/** The one table of the library, every slot filled. Writable: a host may take an operation out (null) or put its own
 * in, while no other thread uses the library. */
extern DST_API chassis_ops_t chassis_priv_ops;

/** The table that libchs_init() binds: always `&chassis_priv_ops`. */
DST_API chassis_ops_t *libc_get_priv_ops(void);

/** The operation behind libdst_fru_info_get_id_by_type_slotno(), callable without a bound table. */
DST_API int fru_info_get_id_by_type_slotno_priv(fru_type_t fru_type, uint32_t slotno, uint32_t *fru_id);

/** Reads "/var/platform/chassis_dst.xml" into `chs_info` and links it. Returns 0, or a negative value with `chs_info`
 * all zero; every failure is logged at LOG_ERR. What `chs_info` held before is forgotten, not released. */
DST_API int libdst_init(void);

/** Reads "/var/platform/chassis_dst.conf", with "/var/platform/chassis_dst_sim.conf" as its simulation tree, into
 * `chs_info` and links it. Returns 0: `nbuttons`, the LCDs and the EPM data of `chs_info` stayed, what its other lists
 * held is forgotten, not released. Or another value, with `chs_info` released and all zero; what is wrong is logged at
 * LOG_ERR, and a description that is refused is said on standard output too. Misuse of the configuration-tree library,
 * which nothing that the files contain leads to, is logged at LOG_CRIT and ends the process with status 1. */
DST_API int libdst_config_init(void);

/** Reads the trees that the configuration-tree library holds into `model`, not linked, all or nothing. Returns 0, or
 * another value, logged. `nbuttons`, the LCDs and the EPM data of `model` stay as they are. */
DST_API int libconfig_root_handler(libdst_chs_info_t *model);

/** @name Threshold readers
 * Callbacks of the configuration-tree library. Their handles come from it: a program that calls them links it too,
 * `-lbrio_config` beside `-ldst`. A list reader fills, from an array, a list of the record that `data`
 * points to, and returns success; memory that runs out ends the list. An element reader returns a new record, or null
 * when memory runs out. Records come from calloc(): a model's are freed with it, all others one by one by the caller.
 * @{ */
/** The thresholds of a sensor, `data` being its tmpsnr_module_list_t, whose record holds the list. */
DST_API brio_cfg_status_t libconfig_config_tmp_threshold_get(void *handle, void *data);
DST_API tmpsnr_threshold_t *libconfig_config_tmp_threshold_elem_read(void *handle);
/** The fan-step limits, then the alarms, of a threshold, `data` being its tmpsnr_threshold_t. */
DST_API brio_cfg_status_t libconfig_config_tmp_threshold_limit_read(void *handle, void *data);
DST_API limit_t *libconfig_config_tmp_thres_limit_data_read(void *handle);
DST_API brio_cfg_status_t libconfig_config_tmp_threshold_alarm_read(void *handle, void *data);
DST_API alarm_info_t *libconfig_config_tmp_thres_alarm_data_read(void *handle);
/** The simulated thresholds of a FRU, `data` being its sim_fru_data_t. */
DST_API brio_cfg_status_t libconfig_config_sim_tmp_threshold_get(void *handle, void *data);
DST_API sim_tmpsnr_threshold_t *libconfig_config_sim_tmp_threshold_elem_read(void *handle);
/** The limits, then the alarms, of a simulated threshold, `data` being its sim_tmpsnr_threshold_t. */
DST_API brio_cfg_status_t libconfig_config_sim_tmp_threshold_limit_read(void *handle, void *data);
DST_API sim_limit_t *libconfig_config_sim_tmp_thres_limit_data_read(void *handle);
DST_API brio_cfg_status_t libconfig_config_sim_tmp_threshold_alarm_read(void *handle, void *data);
DST_API sim_alarm_info_t *libconfig_config_sim_tmp_thres_alarm_data_read(void *handle);
/** @} */

/** Initialises libxml2's parser and checks its version (a mismatch is reported on standard error). */
DST_API void libxml_init(void);

/** Cleans libxml2's parser up: a host that uses libxml2 itself must not rely on its global state across this call. */
DST_API void libxml_shutdown(void);

/** Frees everything that `chs_info` owns and zeroes it. Harmless on an empty model. */
DST_API void libdst_release(void);

/** Turns the ids that the records of `model` carry into pointers. Returns 0; or -1, logged, at the first device whose
 * FRU, or FRU whose I2C device or parent, does not exist (a PIC without its FRU is logged only). */
DST_API int libdst_dev_transform_handler(libdst_chs_info_t *model);

#ifdef __cplusplus
}
#endif

#endif
