#include <gtest/gtest.h>

#include <QCoreApplication>

// Qt's speech engines need an application object (and its event loop for signals).
int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
