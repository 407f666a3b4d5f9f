// An initialisation that does not get the model it has read.
#include <gtest/gtest.h>

#include "../harness/load.h"
#include "chsinfo/libdst_priv.h"

namespace {

int calls;
int failing_call; // 0: none

} // namespace

extern "C" {
libdst_chs_info_t *__real_libdst_get_chs_info(void);
libdst_chs_info_t *__wrap_libdst_get_chs_info(void) {
    return ++calls == failing_call ? nullptr : __real_libdst_get_chs_info();
}
}

TEST(Initialisation, FailsWithoutAModel) {
    calls = 0;
    EXPECT_EQ(load("").status, 0);
    failing_call = calls;
    libchs_release();
    calls = 0;
    const load_result result = load("");
    failing_call = 0;
    EXPECT_EQ(result.status, -1);
    EXPECT_EQ(texts_of(result.log, LOG_ERR), std::vector<std::string>{"libc_init_priv: INVALID chassis info!"});
    EXPECT_EQ(libchs_chassis_info_get(), nullptr);
    libchs_release();
    EXPECT_TRUE(model_is_zero());
}
