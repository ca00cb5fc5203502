#pragma once

/// The two steps by which a class's table grows in a record store: small for the many tables of
/// shortcuts that hold a handful of rows, medium for those that hold a chain's steps.
/// One per thread, through thr_ThreadSingleton.
class cls_ExtQuant {
public:
    int ExtentQuantumConstSmall() const { return 16; }
    int ExtentQuantumConstMedium() const { return 64; }
};
