// A test that starts from the settings of a freshly initialised library and leaves them so.
#ifndef BARHATCH_TESTS_SUPPORT_SETTINGSFIXTURE_H
#define BARHATCH_TESTS_SUPPORT_SETTINGSFIXTURE_H

#include <gtest/gtest.h>

#include "barhatch.h"

namespace barhatch::test {

class SettingsFixture : public testing::Test {
 protected:
  SettingsFixture() { InitBarcode(); }
  ~SettingsFixture() override { InitBarcode(); }
};

}  // namespace barhatch::test

#endif
