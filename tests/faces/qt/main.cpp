#include <gtest/gtest.h>

#include "QtApplication.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const tarnel::qt::QtApplication application(tarnel::qt::QtApplication::WithoutScreen{}, argc, argv);
  return RUN_ALL_TESTS();
}
