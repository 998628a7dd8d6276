#pragma once

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace Testes {

/// A random generator whose seed is printed with every failure in its scope.
class TAcaso : public std::mt19937_64 {
public:
    explicit TAcaso(unsigned ASemente = std::random_device{}())
        : std::mt19937_64(ASemente), FTraco(__FILE__, __LINE__, "seed " + std::to_string(ASemente)) {}

private:
    testing::ScopedTrace FTraco;
};

}  // namespace Testes
