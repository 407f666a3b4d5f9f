// Members of a model that the dump does not show, and the texts that its elements refuse.
#include <gtest/gtest.h>

#include "../harness/load.h"
#include "chsinfo/libdst.h"

namespace {

TEST(Models, MembersThatAreNotShown) {
    ASSERT_EQ(load(R"(<FRUMODEL>
        <MODEL id="1" type="PEM">
          <POWER_RATING>-50</POWER_RATING><FRUDESC>supply</FRUDESC><PEAK_POWER>01100</PEAK_POWER>
          <PEM_INPSW_ACT>true</PEM_INPSW_ACT><NFANS>0302</NFANS><DRIVERID>-3</DRIVERID><PEMTYPE>DC</PEMTYPE>
          <AIRFLOWTYPE>AFO</AIRFLOWTYPE><MIN_FAN_SPEED_PERCENT>-35</MIN_FAN_SPEED_PERCENT>
        </MODEL>
        <MODEL id="2" type="FAN"><FRUEMP>true</FRUEMP><PEM_INPSW_ACT>false</PEM_INPSW_ACT></MODEL>
        <MODEL id="3" type="FAN"><FRU_ENH_TEMPTHRESHOLD>true</FRU_ENH_TEMPTHRESHOLD></MODEL>
        </FRUMODEL>)")
                  .status,
              0);
    const fru_model_info_t *model = libdst_fru_model_info_get_next(nullptr);
    ASSERT_TRUE(model);
    EXPECT_EQ(model->power_rating, -50);
    EXPECT_STREQ(model->fru_desc, "supply");
    EXPECT_EQ(model->peak_power, 1100);
    EXPECT_EQ(model->nfans, 46);
    EXPECT_EQ(model->driverid, -3);
    EXPECT_EQ(model->power_type, FRU_POWER_TYPE_DC);
    EXPECT_EQ(model->aflow_type, FRU_AFLOW_TYPE_AFO_FB);
    EXPECT_EQ(model->min_fan_speed, -35);
    EXPECT_EQ(model->ambient_temp_info.tqh_first, nullptr);
    EXPECT_EQ(model->nfeeds, 0);
    std::string flags;
    for (; model; model = libdst_fru_model_info_get_next(model))
        for (bool flag : {model->pem_inpsw_act, model->fru_level_empolicy, model->enh_temp_threshold})
            flags += flag ? '1' : '0';
    EXPECT_EQ(flags, "100"
                     "010"
                     "001");
    libchs_release();
}

TEST(Models, RefusedElements) {
    for (const char *element :
         {"<PEMTYPE/>", "<PEMTYPE>UNKNOWN</PEMTYPE>", "<AIRFLOWTYPE/>", "<AIRFLOWTYPE> AFI</AIRFLOWTYPE>",
          "<PEM_INPSW_ACT>TRUE</PEM_INPSW_ACT>", "<FRUEMP>1</FRUEMP>", "<FRU_ENH_TEMPTHRESHOLD/>", "<NFANS/>",
          "<MIN_FAN_SPEED_PERCENT/>", "<FRUDESC/>"}) {
        SCOPED_TRACE(element);
        EXPECT_LT(load("<MODEL id='1' type='CHASSIS'>" + std::string(element) + "</MODEL>").status, 0);
        EXPECT_TRUE(model_is_zero());
    }
}

} // namespace
