// The exported functions: each calls its slot of the bound table, unchanged and unlogged. The rows of chassis_ops.def
// make them; initialisation, release and the chassis block are written out.
#include <type_traits>

#include "chsinfo/libdst_priv.h"

// Null until libchs_init() binds it, and again after libchs_release().
static const chassis_ops_t *chassis_ops;

namespace dst {

// An empty slot, like no table at all, answers null, or -1 where the result is an int.
template <auto Slot, class... Args> static auto dispatch(Args... args) {
    const auto operation = chassis_ops ? chassis_ops->*Slot : nullptr;
    using result = decltype(operation(args...));
    if constexpr (std::is_void_v<result>) {
        if (operation)
            operation();
    } else if constexpr (std::is_pointer_v<result>) {
        return operation ? operation(args...) : nullptr;
    } else {
        return operation ? operation(args...) : result{-1};
    }
}

} // namespace dst

static void release_model() {
    dst::dispatch<&chassis_ops_t::libc_chassis_epm_data_release>();
    dst::dispatch<&chassis_ops_t::libc_release>();
}

int libchs_init(void) {
    chassis_ops = libc_get_priv_ops();
    if (dst_chs_info) // also without a table: libc_release was not there when libchs_release() was called
        release_model();
    if (chassis_ops->libc_init) {
        const int rc = chassis_ops->libc_init();
        if (rc < 0)
            return rc;
    }
    return libchs_chassis_epm_data_init();
}

void libchs_release(void) {
    release_model();
    chassis_ops = nullptr;
}

const chassis_info_t *libchs_chassis_info_get(void) { return dst::dispatch<&chassis_ops_t::libc_chassis_info_get>(); }

#define SLOT(result, slot, operation, parameters)
#define QUERY(result, slot, operation, wrapper, parameters, arguments)                                                 \
    result wrapper parameters { return dst::dispatch<&chassis_ops_t::slot> arguments; }
#include "chsinfo/chassis_ops.def"
#undef QUERY
#undef SLOT
