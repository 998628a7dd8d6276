#include <QApplication>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

// With ORY_TESTE_HOSPEDEIRO the program is a host that has its QApplication; without it the toolkit makes one.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    std::unique_ptr<QApplication> hospedeiro;
    if (std::getenv("ORY_TESTE_HOSPEDEIRO")) hospedeiro = std::make_unique<QApplication>(argc, argv);
    return RUN_ALL_TESTS();
}
