#include <gtest/gtest.h>

#include "sandbox.h"

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!testing::GTEST_FLAG(list_tests))
        enter_sandbox();
    return RUN_ALL_TESTS();
}
