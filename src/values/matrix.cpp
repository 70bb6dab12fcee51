#include "values/matrix.h"

#include <utility>

#include "values/fault.h"

namespace lapdesk {

ComplexArray ComplexArray::Matrix(int rows, int columns) {
    ComplexArray m;
    m.NI = rows - 1;
    m.NJ = columns - 1;
    m.Values.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns), Complex{});
    return m;
}

ComplexArray ComplexArray::Vector(int length) {
    return Matrix(length, 1);
}

namespace {

bool IsSquare(const ComplexArray& a) {
    return a.NI == a.NJ;
}
bool IsVector(const ComplexArray& a) {
    return a.NJ == 0;
}

// Runs a routine with its arithmetic faults trapped: a fault is a failure.
template <typename Routine>
bool Trapped(Routine routine) {
    try {
        return routine();
    } catch (const RuntimeFault&) {
        return false;
    }
}

// Gaussian elimination with partial pivoting on working copies of A and B,
// then back substitution from the last row upwards.
bool Solve(ComplexArray a, ComplexArray b, ComplexArray& x) {
    const int n = a.Rows();
    for (int col = 0; col < n; ++col) {
        int pivot = col;
        for (int row = col + 1; row < n; ++row) {
            if (CplAbs(a.At(row, col)) > CplAbs(a.At(pivot, col))) pivot = row;
        }
        if (pivot != col) {
            for (int k = 0; k < n; ++k)
                std::swap(a.At(col, k), a.At(pivot, k));
            std::swap(b.At(col), b.At(pivot));
        }
        for (int row = col + 1; row < n; ++row) {
            const Complex factor = CplDiv(a.At(row, col), a.At(col, col));
            for (int k = col; k < n; ++k) {
                a.At(row, k) = CplSub(a.At(row, k), CplMul(factor, a.At(col, k)));
            }
            b.At(row) = CplSub(b.At(row), CplMul(factor, b.At(col)));
        }
    }
    ComplexArray solution = ComplexArray::Vector(n);
    for (int row = n - 1; row >= 0; --row) {
        Complex sum = b.At(row);
        for (int k = row + 1; k < n; ++k)
            sum = CplSub(sum, CplMul(a.At(row, k), solution.At(k)));
        solution.At(row) = CplDiv(sum, a.At(row, row));
    }
    x = std::move(solution);
    return true;
}

ComplexArray Minor(const ComplexArray& a, int column) {
    const int n = a.Rows() - 1;
    ComplexArray minor = ComplexArray::Matrix(n, n);
    for (int row = 0; row < n; ++row) {
        int target = 0;
        for (int c = 0; c < n + 1; ++c) {
            if (c != column) minor.At(row, target++) = a.At(row + 1, c);
        }
    }
    return minor;
}

// Determinant by cofactor expansion along the first row.
Complex Determinant(const ComplexArray& a) {
    const int n = a.Rows();
    if (n == 1) return a.At(0, 0);
    if (n == 2) return CplSub(CplMul(a.At(0, 0), a.At(1, 1)), CplMul(a.At(0, 1), a.At(1, 0)));
    Complex sum{};
    for (int c = 0; c < n; ++c) {
        const Complex term = CplMul(a.At(0, c), Determinant(Minor(a, c)));
        sum = (c % 2 == 0) ? CplAdd(sum, term) : CplSub(sum, term);
    }
    return sum;
}

// Cofactor expansion costs n! products; past this size the determinant is
// taken from the eliminated (upper triangular) matrix instead.
constexpr int kLargestCofactorSize = 8;

Complex EliminatedDeterminant(ComplexArray a) {
    const int n = a.Rows();
    Complex det{1.0, 0.0};
    for (int col = 0; col < n; ++col) {
        int pivot = col;
        for (int row = col + 1; row < n; ++row) {
            if (CplAbs(a.At(row, col)) > CplAbs(a.At(pivot, col))) pivot = row;
        }
        if (a.At(pivot, col) == Complex{}) return {};
        if (pivot != col) {
            for (int k = 0; k < n; ++k)
                std::swap(a.At(col, k), a.At(pivot, k));
            det = CplNeg(det);
        }
        det = CplMul(det, a.At(col, col));
        for (int row = col + 1; row < n; ++row) {
            const Complex factor = CplDiv(a.At(row, col), a.At(col, col));
            for (int k = col; k < n; ++k) {
                a.At(row, k) = CplSub(a.At(row, k), CplMul(factor, a.At(col, k)));
            }
        }
    }
    return det;
}

}  // namespace

bool GaussSolve(const ComplexArray& a, const ComplexArray& b, ComplexArray& x) {
    if (!IsSquare(a) || !IsVector(b) || b.Rows() != a.Rows()) return false;
    return Trapped([&] { return Solve(a, b, x); });
}

bool MatxVec(const ComplexArray& a, const ComplexArray& b, ComplexArray& c) {
    if (!IsVector(b) || b.Rows() != a.Columns()) return false;
    return Trapped([&] {
        ComplexArray product = ComplexArray::Vector(a.Rows());
        for (int i = 0; i < a.Rows(); ++i) {
            for (int k = 0; k < a.Columns(); ++k) {
                product.At(i) = CplAdd(product.At(i), CplMul(a.At(i, k), b.At(k)));
            }
        }
        c = std::move(product);
        return true;
    });
}

bool MatxMat(const ComplexArray& a, const ComplexArray& b, ComplexArray& c) {
    if (b.Rows() != a.Columns()) return false;
    return Trapped([&] {
        ComplexArray product = ComplexArray::Matrix(a.Rows(), b.Columns());
        for (int i = 0; i < a.Rows(); ++i) {
            for (int j = 0; j < b.Columns(); ++j) {
                for (int k = 0; k < a.Columns(); ++k) {
                    product.At(i, j) = CplAdd(product.At(i, j), CplMul(a.At(i, k), b.At(k, j)));
                }
            }
        }
        c = std::move(product);
        return true;
    });
}

bool MatI1(const ComplexArray& a, Complex& trace) {
    if (!IsSquare(a)) return false;
    return Trapped([&] {
        Complex sum{};
        for (int i = 0; i < a.Rows(); ++i)
            sum = CplAdd(sum, a.At(i, i));
        trace = sum;
        return true;
    });
}

bool MatJ2(const ComplexArray& a, Complex& sumOfSquares) {
    if (!IsSquare(a)) return false;
    return Trapped([&] {
        Complex sum{};
        for (const Complex& v : a.Values)
            sum = CplAdd(sum, CplMul(v, v));
        sumOfSquares = sum;
        return true;
    });
}

bool MatI3(const ComplexArray& a, Complex& determinant) {
    if (!IsSquare(a)) return false;
    return Trapped([&] {
        determinant = a.Rows() <= kLargestCofactorSize ? Determinant(a) : EliminatedDeterminant(a);
        return true;
    });
}

bool InvMat(const ComplexArray& a, ComplexArray& inverse) {
    if (!IsSquare(a)) return false;
    const int n = a.Rows();
    ComplexArray result = ComplexArray::Matrix(n, n);
    for (int j = 0; j < n; ++j) {
        ComplexArray unit = ComplexArray::Vector(n);
        unit.At(j) = {1.0, 0.0};
        ComplexArray column;
        if (!GaussSolve(a, unit, column)) return false;
        for (int i = 0; i < n; ++i)
            result.At(i, j) = column.At(i);
    }
    inverse = std::move(result);
    return true;
}

}  // namespace lapdesk
