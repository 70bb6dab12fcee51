// The language's matrix routines on arrays of complex values. An array keeps
// the interpreter's layout: upper bounds NI and NJ (subscripts from 0) and
// element (i, j) at flat index (NI + 1) * j + i. A vector has NJ = 0.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "values/complex.h"

namespace lapdesk {

struct ComplexArray {
    int NI = 0;
    int NJ = 0;
    std::vector<Complex> Values;

    static ComplexArray Matrix(int rows, int columns);
    static ComplexArray Vector(int length);
    int Rows() const { return NI + 1; }
    int Columns() const { return NJ + 1; }
    Complex& At(int i, int j = 0) { return Values[Index(i, j)]; }
    const Complex& At(int i, int j = 0) const { return Values[Index(i, j)]; }

  private:
    std::size_t Index(int i, int j) const { return static_cast<std::size_t>((NI + 1) * j + i); }
};

// Called between the rows or columns of the routines that take O(n^3) work,
// so that the caller can end one the user wants stopped by raising its own
// signal (which passes through; only arithmetic faults are trapped here).
using StopPoll = std::function<void()>;

// Each routine returns false when the shapes do not fit or an arithmetic
// fault (such as a zero pivot) occurred inside; the fault is trapped here.
bool GaussSolve(const ComplexArray& a, const ComplexArray& b, ComplexArray& x,
                const StopPoll& poll = {});  // A·X = B
bool MatxVec(const ComplexArray& a, const ComplexArray& b, ComplexArray& c);
bool MatxMat(const ComplexArray& a, const ComplexArray& b, ComplexArray& c,
             const StopPoll& poll = {});
bool MatI1(const ComplexArray& a, Complex& trace);
bool MatJ2(const ComplexArray& a, Complex& sumOfSquares);  // Σ A(i,j)·A(i,j), no conjugate
bool MatI3(const ComplexArray& a, Complex& determinant);
// One elimination of A and a solve per column of the identity: each column
// is exactly what GaussSolve gives for that unit vector.
bool InvMat(const ComplexArray& a, ComplexArray& inverse, const StopPoll& poll = {});

}  // namespace lapdesk
