// The matrix routines: invariants, determinant, products, the linear solver
// and the inverse, checked against values worked out by hand.
#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <vector>

#include "complex_near.h"
#include "values/matrix.h"

namespace lapdesk {
namespace {

using Rows = std::initializer_list<std::initializer_list<Complex>>;

ComplexArray MatrixOf(Rows rows) {
    const int n = static_cast<int>(rows.size());
    const int m = static_cast<int>(rows.begin()->size());
    ComplexArray a = ComplexArray::Matrix(n, m);
    int i = 0;
    for (const auto& row : rows) {
        int j = 0;
        for (const Complex& v : row)
            a.At(i, j++) = v;
        ++i;
    }
    return a;
}

ComplexArray VectorOf(std::initializer_list<Complex> values) {
    ComplexArray v = ComplexArray::Vector(static_cast<int>(values.size()));
    int i = 0;
    for (const Complex& x : values)
        v.At(i++) = x;
    return v;
}

// The n x n matrix with 2 on the diagonal and -1 beside it: determinant n + 1.
ComplexArray SecondDifference(int n) {
    ComplexArray a = ComplexArray::Matrix(n, n);
    for (int i = 0; i < n; ++i) {
        a.At(i, i) = {2, 0};
        if (i > 0) a.At(i, i - 1) = {-1, 0};
        if (i + 1 < n) a.At(i, i + 1) = {-1, 0};
    }
    return a;
}

::testing::AssertionResult SameArray(const ComplexArray& actual, const ComplexArray& expected,
                                     double tolerance) {
    if (actual.NI != expected.NI || actual.NJ != expected.NJ) {
        return ::testing::AssertionFailure()
               << "shape " << actual.Rows() << "x" << actual.Columns() << ", expected "
               << expected.Rows() << "x" << expected.Columns();
    }
    for (int i = 0; i < expected.Rows(); ++i) {
        for (int j = 0; j < expected.Columns(); ++j) {
            auto result = Near(actual.At(i, j), expected.At(i, j), tolerance);
            if (!result) return result << " at (" << i << ", " << j << ")";
        }
    }
    return ::testing::AssertionSuccess();
}

// The vector 1, 2, ..., n.
ComplexArray Ramp(int n) {
    ComplexArray v = ComplexArray::Vector(n);
    for (int i = 0; i < n; ++i)
        v.At(i) = {i + 1.0, 0};
    return v;
}

ComplexArray Identity(int n) {
    ComplexArray a = ComplexArray::Matrix(n, n);
    for (int i = 0; i < n; ++i)
        a.At(i, i) = {1, 0};
    return a;
}

TEST(ComplexArrayLayout, ElementIJIsAtRowsTimesJPlusI) {
    ComplexArray a = ComplexArray::Matrix(2, 3);
    a.At(1, 2) = {5, 0};
    EXPECT_EQ(a.Values[2 * 2 + 1], (Complex{5, 0}));
    EXPECT_EQ(a.Rows(), 2);
    EXPECT_EQ(a.Columns(), 3);
}

// ------------------------------------------------------- scalar invariants

TEST(MatrixInvariants, ScalarResults) {
    struct Row {
        const char* name;
        bool (*routine)(const ComplexArray&, Complex&);
        ComplexArray a;
        Complex expected;
        double tolerance;
    };
    const Row rows[] = {
        {"MatJ2 is the plain sum of squares",
         MatJ2,
         MatrixOf({{{1, 0}, {2, 0}}, {{3, 0}, {4, 0}}}),
         {30, 0},
         0},
        {"MatJ2 takes no conjugate", MatJ2, MatrixOf({{{0, 1}}}), {-1, 0}, 0},
        {"MatI1 sums the diagonal",
         MatI1,
         MatrixOf({{{1, 0}, {2, 0}}, {{3, 0}, {4, 1}}}),
         {5, 1},
         0},
        {"MatI3 of 1x1", MatI3, MatrixOf({{{7, 2}}}), {7, 2}, 0},
        {"MatI3 of 2x2", MatI3, MatrixOf({{{1, 0}, {2, 0}}, {{3, 0}, {4, 0}}}), {-2, 0}, 0},
        {"MatI3 of 3x3 with zero first row",
         MatI3,
         MatrixOf({{{0, 0}, {0, 0}, {0, 0}}, {{1, 0}, {2, 0}, {3, 0}}, {{4, 0}, {5, 0}, {7, 0}}}),
         {0, 0},
         0},
        {"MatI3 signs alternate",
         MatI3,
         MatrixOf({{{0, 0}, {1, 0}, {0, 0}}, {{1, 0}, {0, 0}, {0, 0}}, {{0, 0}, {0, 0}, {1, 0}}}),
         {-1, 0},
         0},
        {"MatI3 of complex 2x2", MatI3, MatrixOf({{{0, 1}, {1, 0}}, {{1, 0}, {0, 1}}}), {-2, 0}, 0},
        {"MatI3 of 8x8 by cofactors", MatI3, SecondDifference(8), {9, 0}, 1e-12},
        {"MatI3 of 9x9 by elimination", MatI3, SecondDifference(9), {10, 0}, 1e-12},
    };
    for (const Row& row : rows) {
        Complex result{99, 99};
        ASSERT_TRUE(row.routine(row.a, result)) << row.name;
        EXPECT_TRUE(Near(result, row.expected, row.tolerance)) << row.name;
    }
}

TEST(MatrixInvariants, SingularLargeMatrixHasZeroDeterminant) {
    ComplexArray a = SecondDifference(10);
    for (int i = 0; i < 10; ++i)
        a.At(i, 0) = {0, 0};
    Complex det{99, 99};
    ASSERT_TRUE(MatI3(a, det));
    EXPECT_EQ(det, (Complex{0, 0}));
}

TEST(MatrixInvariants, NonSquareOrFaultingInputFails) {
    const ComplexArray wide = ComplexArray::Matrix(2, 3);
    const ComplexArray huge = MatrixOf({{{1e200, 0}}});
    Complex result{99, 99};
    EXPECT_FALSE(MatI1(wide, result));
    EXPECT_FALSE(MatJ2(wide, result));
    EXPECT_FALSE(MatI3(wide, result));
    EXPECT_FALSE(MatJ2(huge, result)) << "an overflow inside is trapped as a failure";
    EXPECT_EQ(result, (Complex{99, 99}));
}

// ----------------------------------------------------------------- products

TEST(MatrixProducts, MatrixTimesVectorAndMatrix) {
    const ComplexArray a = MatrixOf({{{1, 0}, {2, 0}, {3, 0}}, {{4, 0}, {5, 0}, {6, 0}}});
    ComplexArray c;
    ASSERT_TRUE(MatxVec(a, VectorOf({{1, 0}, {0, 1}, {1, 0}}), c));
    EXPECT_TRUE(SameArray(c, VectorOf({{4, 2}, {10, 5}}), 0));

    const ComplexArray b = MatrixOf({{{1, 0}, {0, 0}}, {{0, 0}, {1, 0}}, {{1, 0}, {1, 0}}});
    ASSERT_TRUE(MatxMat(a, b, c));
    EXPECT_TRUE(SameArray(c, MatrixOf({{{4, 0}, {5, 0}}, {{10, 0}, {11, 0}}}), 0));
}

TEST(MatrixProducts, ShapeMismatchFailsAndKeepsTheTarget) {
    const ComplexArray a = ComplexArray::Matrix(2, 3);
    const ComplexArray untouched = VectorOf({{42, 0}});
    ComplexArray c = untouched;
    EXPECT_FALSE(MatxVec(a, ComplexArray::Vector(2), c));
    EXPECT_FALSE(MatxVec(a, ComplexArray::Matrix(3, 2), c)) << "B must be a vector";
    EXPECT_FALSE(MatxMat(a, ComplexArray::Matrix(2, 2), c));
    EXPECT_TRUE(SameArray(c, untouched, 0));
}

// ------------------------------------------------------ solver and inverse

TEST(GaussSolve, SolvesThroughPivotSwaps) {
    struct Row {
        const char* name;
        ComplexArray a;
        ComplexArray x;  // the solution; B is computed as A·X
    };
    const Row rows[] = {
        {"zero top-left corner", MatrixOf({{{0, 0}, {1, 0}}, {{1, 0}, {0, 0}}}),
         VectorOf({{3, 0}, {2, 0}})},
        {"zero top-left in 3x3",
         MatrixOf({{{0, 0}, {2, 0}, {1, 0}}, {{1, 0}, {1, 0}, {1, 0}}, {{2, 0}, {1, 0}, {0, 0}}}),
         VectorOf({{1, 0}, {-2, 0}, {3, 0}})},
        {"complex system", MatrixOf({{{0, 1}, {1, 0}}, {{1, 0}, {0, 1}}}),
         VectorOf({{1, 1}, {2, -1}})},
        {"1x1", MatrixOf({{{4, 0}}}), VectorOf({{0.25, 0}})},
        {"tridiagonal 12x12", SecondDifference(12), Ramp(12)},
    };
    for (const Row& row : rows) {
        ComplexArray b;
        ASSERT_TRUE(MatxVec(row.a, row.x, b)) << row.name;
        ComplexArray x;
        ASSERT_TRUE(GaussSolve(row.a, b, x)) << row.name;
        EXPECT_TRUE(SameArray(x, row.x, 1e-12)) << row.name;
    }
}

TEST(GaussSolve, SingularOrMisshapenInputFailsAndKeepsTheTarget) {
    const ComplexArray untouched = VectorOf({{42, 0}});
    struct Row {
        const char* name;
        ComplexArray a;
        ComplexArray b;
    };
    const Row rows[] = {
        {"singular", MatrixOf({{{1, 0}, {2, 0}}, {{2, 0}, {4, 0}}}), VectorOf({{1, 0}, {2, 0}})},
        {"all zero", ComplexArray::Matrix(3, 3), ComplexArray::Vector(3)},
        {"B too long", ComplexArray::Matrix(2, 2), ComplexArray::Vector(3)},
        {"A not square", ComplexArray::Matrix(2, 3), ComplexArray::Vector(2)},
        {"B a matrix", ComplexArray::Matrix(2, 2), ComplexArray::Matrix(2, 2)},
    };
    for (const Row& row : rows) {
        ComplexArray x = untouched;
        EXPECT_FALSE(GaussSolve(row.a, row.b, x)) << row.name;
        EXPECT_TRUE(SameArray(x, untouched, 0)) << row.name;
    }
}

TEST(InvMat, InverseTimesMatrixIsIdentity) {
    const ComplexArray matrices[] = {
        MatrixOf({{{0, 0}, {2, 0}, {1, 0}}, {{1, 0}, {1, 0}, {1, 0}}, {{2, 0}, {1, 0}, {0, 0}}}),
        MatrixOf({{{1, 2}, {3, -1}}, {{0, 1}, {2, 2}}}),
        SecondDifference(7),
    };
    for (const ComplexArray& a : matrices) {
        ComplexArray inverse, product;
        ASSERT_TRUE(InvMat(a, inverse));
        ASSERT_TRUE(MatxMat(inverse, a, product));
        EXPECT_TRUE(SameArray(product, Identity(a.Rows()), 1e-12));
        ASSERT_TRUE(MatxMat(a, inverse, product));
        EXPECT_TRUE(SameArray(product, Identity(a.Rows()), 1e-12));
    }
}

// One elimination serves every column of the inverse: each column is bit
// for bit what GaussSolve gives for its unit vector.
TEST(InvMat, EachColumnIsTheSolveForItsUnitVector) {
    const int n = 12;
    ComplexArray a = ComplexArray::Matrix(n, n);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j)
            a.At(i, j) = {std::sin(1.0 + i * n + j), std::cos(3.0 * i - j)};
    }
    ComplexArray inverse;
    ASSERT_TRUE(InvMat(a, inverse));
    for (int j = 0; j < n; ++j) {
        ComplexArray unit = ComplexArray::Vector(n), solved;
        unit.At(j) = {1.0, 0.0};
        ASSERT_TRUE(GaussSolve(a, unit, solved));
        for (int i = 0; i < n; ++i)
            EXPECT_EQ(inverse.At(i, j), solved.At(i)) << i << "," << j;
    }
}

TEST(InvMat, SingularOrNonSquareFails) {
    const ComplexArray untouched = Identity(1);
    ComplexArray inverse = untouched;
    EXPECT_FALSE(InvMat(MatrixOf({{{1, 0}, {2, 0}}, {{2, 0}, {4, 0}}}), inverse));
    EXPECT_FALSE(InvMat(ComplexArray::Matrix(3, 3), inverse));
    EXPECT_FALSE(InvMat(ComplexArray::Matrix(2, 3), inverse));
    EXPECT_TRUE(SameArray(inverse, untouched, 0));
}

}  // namespace
}  // namespace lapdesk
