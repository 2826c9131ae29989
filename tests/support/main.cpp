#include <gmock/gmock.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
