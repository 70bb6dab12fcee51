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

void Poll(const StopPoll& poll) {
    if (poll) poll();
}

// Gaussian elimination of A with partial pivoting, kept with its row swaps
// and factors so that any right-hand side can be solved afterwards with
// exactly the operations one elimination of [A | b] applies to b.
struct Elimination {
    ComplexArray upper;       // A eliminated; its upper triangle is used
    ComplexArray factors;     // factors(row, col): the multiple of row col taken from row
    std::vector<int> pivots;  // the row swapped with row col at step col
};

Elimination Eliminate(ComplexArray a, const StopPoll& poll) {
    const int n = a.Rows();
    Elimination e{{}, ComplexArray::Matrix(n, n), std::vector<int>(static_cast<std::size_t>(n))};
    for (int col = 0; col < n; ++col) {
        Poll(poll);
        int pivot = col;
        for (int row = col + 1; row < n; ++row) {
            if (CplAbs(a.At(row, col)) > CplAbs(a.At(pivot, col))) pivot = row;
        }
        e.pivots[static_cast<std::size_t>(col)] = pivot;
        if (pivot != col) {
            for (int k = 0; k < n; ++k)
                std::swap(a.At(col, k), a.At(pivot, k));
        }
        for (int row = col + 1; row < n; ++row) {
            const Complex factor = CplDiv(a.At(row, col), a.At(col, col));
            e.factors.At(row, col) = factor;
            for (int k = col; k < n; ++k) {
                a.At(row, k) = CplSub(a.At(row, k), CplMul(factor, a.At(col, k)));
            }
        }
    }
    e.upper = std::move(a);
    return e;
}

// Replays the elimination on b, then substitutes back from the last row.
ComplexArray SolveEliminated(const Elimination& e, ComplexArray b) {
    const int n = e.upper.Rows();
    for (int col = 0; col < n; ++col) {
        const int pivot = e.pivots[static_cast<std::size_t>(col)];
        if (pivot != col) std::swap(b.At(col), b.At(pivot));
        for (int row = col + 1; row < n; ++row) {
            b.At(row) = CplSub(b.At(row), CplMul(e.factors.At(row, col), b.At(col)));
        }
    }
    ComplexArray solution = ComplexArray::Vector(n);
    for (int row = n - 1; row >= 0; --row) {
        Complex sum = b.At(row);
        for (int k = row + 1; k < n; ++k)
            sum = CplSub(sum, CplMul(e.upper.At(row, k), solution.At(k)));
        solution.At(row) = CplDiv(sum, e.upper.At(row, row));
    }
    return solution;
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

bool GaussSolve(const ComplexArray& a, const ComplexArray& b, ComplexArray& x,
                const StopPoll& poll) {
    if (!IsSquare(a) || !IsVector(b) || b.Rows() != a.Rows()) return false;
    return Trapped([&] {
        x = SolveEliminated(Eliminate(a, poll), b);
        return true;
    });
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

bool MatxMat(const ComplexArray& a, const ComplexArray& b, ComplexArray& c, const StopPoll& poll) {
    if (b.Rows() != a.Columns()) return false;
    return Trapped([&] {
        ComplexArray product = ComplexArray::Matrix(a.Rows(), b.Columns());
        for (int i = 0; i < a.Rows(); ++i) {
            Poll(poll);
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

bool InvMat(const ComplexArray& a, ComplexArray& inverse, const StopPoll& poll) {
    if (!IsSquare(a)) return false;
    return Trapped([&] {
        const Elimination e = Eliminate(a, poll);
        const int n = a.Rows();
        ComplexArray result = ComplexArray::Matrix(n, n);
        for (int j = 0; j < n; ++j) {
            Poll(poll);
            ComplexArray unit = ComplexArray::Vector(n);
            unit.At(j) = {1.0, 0.0};
            const ComplexArray column = SolveEliminated(e, std::move(unit));
            for (int i = 0; i < n; ++i)
                result.At(i, j) = column.At(i);
        }
        inverse = std::move(result);
        return true;
    });
}

}  // namespace lapdesk
