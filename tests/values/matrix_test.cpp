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

// The matrix with the given rows, of complex or real entries.
template <typename T>
ComplexArray MatrixOf(std::initializer_list<std::initializer_list<T>> rows) {
    ComplexArray a =
        ComplexArray::Matrix(static_cast<int>(rows.size()), static_cast<int>(rows.begin()->size()));
    int i = 0;
    for (const auto& row : rows) {
        int j = 0;
        for (const T& v : row)
            a.At(i, j++) = Complex{v};
        ++i;
    }
    return a;
}

ComplexArray Real(std::initializer_list<std::initializer_list<double>> rows) {
    return MatrixOf(rows);
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

// MatJ2 is the plain sum of squares, without conjugates; MatI3 goes by
// cofactors up to 8x8 and by elimination above.
TEST(MatrixInvariants, ScalarResults) {
    ComplexArray singular = SecondDifference(10);
    for (int i = 0; i < 10; ++i)
        singular.At(i, 0) = {0, 0};
    const struct {
        bool (*routine)(const ComplexArray&, Complex&);
        ComplexArray a;
        Complex expected;
        double tolerance;
    } rows[] = {{MatJ2, Real({{1, 2}, {3, 4}}), {30, 0}, 0},
                {MatJ2, MatrixOf<Complex>({{{0, 1}}}), {-1, 0}, 0},
                {MatI1, MatrixOf<Complex>({{{1, 0}, {2, 0}}, {{3, 0}, {4, 1}}}), {5, 1}, 0},
                {MatI3, MatrixOf<Complex>({{{7, 2}}}), {7, 2}, 0},
                {MatI3, Real({{1, 2}, {3, 4}}), {-2, 0}, 0},
                {MatI3, Real({{0, 0, 0}, {1, 2, 3}, {4, 5, 7}}), {0, 0}, 0},
                {MatI3, Real({{0, 1, 0}, {1, 0, 0}, {0, 0, 1}}), {-1, 0}, 0},
                {MatI3, MatrixOf<Complex>({{{0, 1}, {1, 0}}, {{1, 0}, {0, 1}}}), {-2, 0}, 0},
                {MatI3, SecondDifference(8), {9, 0}, 1e-12},
                {MatI3, SecondDifference(9), {10, 0}, 1e-12},
                {MatI3, singular, {0, 0}, 0}};
    for (std::size_t k = 0; k < std::size(rows); ++k) {
        Complex result{99, 99};
        ASSERT_TRUE(rows[k].routine(rows[k].a, result)) << "row " << k;
        EXPECT_TRUE(Near(result, rows[k].expected, rows[k].tolerance)) << "row " << k;
    }
}

// An overflow inside is trapped as a failure, like a non-square matrix.
TEST(MatrixInvariants, NonSquareOrFaultingInputFails) {
    const ComplexArray wide = ComplexArray::Matrix(2, 3);
    Complex result{99, 99};
    EXPECT_FALSE(MatI1(wide, result));
    EXPECT_FALSE(MatJ2(wide, result));
    EXPECT_FALSE(MatI3(wide, result));
    EXPECT_FALSE(MatJ2(Real({{1e200}}), result));
    EXPECT_EQ(result, (Complex{99, 99}));
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

// A zero in the top-left corner is handled by the pivot swap. The inverse
// multiplies to the identity on both sides.
TEST(GaussSolveAndInvMat, SolveThroughPivotSwaps) {
    const struct {
        ComplexArray a;
        ComplexArray x;  // the solution; B is computed as A·X
    } rows[] = {
        {Real({{0, 1}, {1, 0}}), VectorOf({{3, 0}, {2, 0}})},
        {Real({{0, 2, 1}, {1, 1, 1}, {2, 1, 0}}), VectorOf({{1, 0}, {-2, 0}, {3, 0}})},
        {MatrixOf<Complex>({{{1, 2}, {3, -1}}, {{0, 1}, {2, 2}}}), VectorOf({{1, 1}, {2, -1}})},
        {Real({{4}}), VectorOf({{0.25, 0}})},
        {SecondDifference(12), Ramp(12)}};
    for (std::size_t k = 0; k < std::size(rows); ++k) {
        SCOPED_TRACE(testing::Message() << "row " << k);
        ComplexArray b, x, inverse, product;
        ASSERT_TRUE(MatxVec(rows[k].a, rows[k].x, b));
        ASSERT_TRUE(GaussSolve(rows[k].a, b, x));
        EXPECT_TRUE(SameArray(x, rows[k].x, 1e-12));
        ASSERT_TRUE(InvMat(rows[k].a, inverse));
        ASSERT_TRUE(MatxMat(inverse, rows[k].a, product));
        EXPECT_TRUE(SameArray(product, Identity(rows[k].a.Rows()), 1e-12));
        ASSERT_TRUE(MatxMat(rows[k].a, inverse, product));
        EXPECT_TRUE(SameArray(product, Identity(rows[k].a.Rows()), 1e-12));
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

TEST(GaussSolveAndInvMat, SingularOrMisshapenInputFailsAndKeepsTheTarget) {
    const ComplexArray untouched = VectorOf({{42, 0}});
    const struct {
        ComplexArray a;
        ComplexArray b;
    } rows[] = {{Real({{1, 2}, {2, 4}}), VectorOf({{1, 0}, {2, 0}})},
                {ComplexArray::Matrix(3, 3), ComplexArray::Vector(3)},
                {ComplexArray::Matrix(2, 2), ComplexArray::Vector(3)},
                {ComplexArray::Matrix(2, 3), ComplexArray::Vector(2)},
                {ComplexArray::Matrix(2, 2), ComplexArray::Matrix(2, 2)}};
    for (std::size_t k = 0; k < std::size(rows); ++k) {
        ComplexArray x = untouched;
        EXPECT_FALSE(GaussSolve(rows[k].a, rows[k].b, x)) << "row " << k;
        EXPECT_TRUE(SameArray(x, untouched, 0)) << "row " << k;
    }
    ComplexArray inverse = untouched;
    for (std::size_t k : {0, 1, 3})
        EXPECT_FALSE(InvMat(rows[k].a, inverse)) << "row " << k;
    EXPECT_TRUE(SameArray(inverse, untouched, 0));
}

}  // namespace
}  // namespace lapdesk
