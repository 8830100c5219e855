#include <gtest/gtest.h>

#include <QApplication>

#include "shell/look.h"

int main(int argument_count, char** arguments) {
  ::testing::InitGoogleTest(&argument_count, arguments);
  const QApplication application(argument_count, arguments);
  morlek::ApplyLook();
  return RUN_ALL_TESTS();
}
