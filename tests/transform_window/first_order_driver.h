// A transform driver holding the data and result of F(s) = 1/(s+1), with
// T = 5 and gamma0 = 5.
#pragma once

#include <gtest/gtest.h>

#include "transform/transform_driver.h"

namespace lapdesk {

inline TransformDriver FirstOrder(const char* n = "128") {
    TransformDriver driver;
    EXPECT_TRUE(driver.SetWordNumber(n));
    EXPECT_TRUE(driver
                    .MakeData([](const Complex& s) {
                        const double d = (s.Re + 1) * (s.Re + 1) + s.Im * s.Im;
                        return Complex{(s.Re + 1) / d, -s.Im / d};
                    })
                    .ok);
    return driver;
}

}  // namespace lapdesk
