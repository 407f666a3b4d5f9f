/** @file
 * The platform's configuration-tree library: named values, groups and arrays read from a file.
 *
 * A handle (`void *`) is a group, a subtree, an array or an element of one; null where there is none. Handles, and the
 * texts read through them, belong to the library and stay valid until the next brio_config_init(), or until the library
 * is unloaded, which frees every tree.
 *
 * A null handle or a null key is misuse: the assertion callback is told, and where it returns, the call fails. What a
 * file contains never is. There are no locks: calls must not run side by side.
 *
 * The library has one user in a process: a later brio_config_init() frees an earlier user's trees, and its callback
 * takes the place of theirs. Until then the callback must stay loaded: once the user's own code has been unloaded,
 * there may be no call but brio_config_init().
 *
 * This implementation reads the syntax of libconfig:
 *
 *     CHASSIS = {                            a group
 *         VERSION = 1;                       integers: 12, 012 (the same), 0x1F, also with the suffix L
 *         FAMILY = "QVL";                    a text
 *         FRUS = ( { id = 0; }, { id = 1; } );     an array of groups: a list
 *         MC_MUXADDR = [ 0x70, 0x71 ];       an array of integers
 *     };
 *
 * Numbers are written as in the C locale, whatever the host's is. They are those of libconfig 1.5, whichever version is
 * there. An integer that no read takes (see brio_config_int_read()) fails there alone; in an array of integers it is an
 * error of the file. A letter, a "_" or a "-" right behind a number, a text or a comment without an end, nesting deeper
 * than 1000, a NUL byte and "@include" (but in a text or a comment) are errors too.
 *
 * The file is read whole, up to 512 MB. Memory that runs out inside libconfig is beyond this library: libconfig 1.5
 * does not check its allocations. It takes up to fifty times the file's size, and its time grows with the square of a
 * group's members.
 */
#ifndef BRIO_CONFIG_H
#define BRIO_CONFIG_H

#include <stdint.h>

#ifdef __cplusplus
/** The underlying type of the enumeration is int also in C++: callbacks may return other failures than 1. */
#define BRIO_ENUM_INT : int
extern "C" {
#else
#define BRIO_ENUM_INT
#endif

/** Marks what the library exports. */
#if defined(__GNUC__)
#define BRIO_API __attribute__((visibility("default")))
#else
#define BRIO_API
#endif

/** Result of a read. A caller takes everything but success for a failure. */
typedef enum brio_cfg_status_e BRIO_ENUM_INT {
    BRIO_CONFIG_SUCCESS = 0,
    BRIO_CONFIG_FAIL = 1,
} brio_cfg_status_t;

/** Called with a subtree or an element, and with the context that the caller gave. */
typedef brio_cfg_status_t (*brio_config_get_fn_t)(void *handle, void *context);

/** Forgets the trees of an earlier call and reads the file `path`, and the file chassis_dst_sim.conf in the folder
 * `sim_dir`, where there is one, as the simulation tree. A null `path` or `sim_dir` and `options` other than 0 are
 * misuse. `assert_fn` is told of misuse, here and in later calls, with what is wrong and the line of this library that
 * noticed; null: nobody is told. A file that is missing, no regular file (nor is one of /proc or /sys), unreadable, too
 * large, empty or wrong gives no tree; what is wrong with one that is there and not empty is logged by syslog() at
 * LOG_ERR, as "FILE:LINE: reason" or, when it cannot be read, "FILE: reason". Returns BRIO_CONFIG_SUCCESS when `path`
 * gave a tree. */
BRIO_API brio_cfg_status_t brio_config_init(const char *path, int options, const char *sim_dir,
                                            void (*assert_fn)(const char *error_str, int error_line));

/** The group of this name at the root of the configuration tree, or null. */
BRIO_API void *brio_config_handle_get(const char *name);

/** The group of this name at the root of the simulation tree, or null. */
BRIO_API void *brio_config_handle_sim_get(const char *name);

/** Stores the integer of a group's key. Values from -2^31 to 2^32-1 are taken, the upper half as the negative number
 * with the same bits. Fails, with `value` as it was, when there is no such key, the value is no integer or does not
 * fit, or the handle is no group. */
BRIO_API brio_cfg_status_t brio_config_int_read(void *handle, const char *key, int32_t *value);

/** Stores the text of a group's key, which belongs to the library. A failure stores null. */
BRIO_API brio_cfg_status_t brio_config_str_read(void *handle, const char *key, const char **value);

/** Stores the number of a group's key. It may be an integer from -2^31 to 2^32-1, and is what is written: 0xFFFFFFFF
 * gives 4294967295.0. An integer beyond must be written with a point or an exponent. Fails also for a number beyond the
 * range of double. A failure leaves `value` as it was. */
BRIO_API brio_cfg_status_t brio_config_float_read(void *handle, const char *key, double *value);

/** Calls `callback` with the group, list or array under a group's key, and returns its result; fails without calling it
 * when there is none. */
BRIO_API brio_cfg_status_t brio_config_subtree_get(void *handle, const char *key, void *context,
                                                   brio_config_get_fn_t callback);

/** Stores what `reader` makes of the group, list or array under a group's key. A failure leaves `result` as it was. */
BRIO_API brio_cfg_status_t brio_config_subtree_read(void *handle, const char *key, void **result,
                                                    void *(*reader)(void *handle));

/** Calls `callback` with element `index`, from 0, of the array under a group's key, and returns its result; fails
 * without calling it when there is no such array or element. */
BRIO_API brio_cfg_status_t brio_config_array_element_get(void *handle, const char *key, int index, void *context,
                                                         brio_config_get_fn_t callback);

/** Stores what `reader` makes of element `index`, from 0, of an array. A failure leaves `result` as it was. */
BRIO_API brio_cfg_status_t brio_config_array_element_read(void *array, int index, void **result,
                                                          void *(*reader)(void *handle));

/** Stores the integer element `index`, from 0, of an array; values as in brio_config_int_read(). A failure leaves
 * `value` as it was. */
BRIO_API brio_cfg_status_t brio_config_array_int_read(void *array, int index, int *value);

#ifdef __cplusplus
}
#endif

#endif
