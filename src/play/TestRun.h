#pragma once

#include "play/BookTest.h"
#include "play/Coverage.h"

namespace play {

// What came of a test.
struct TestResult
{
    size_t taps = 0;          // that were made, and starts
    size_t expectations = 0;  // that were looked at
    // What was expected and what happened, at the line of the expectation: "expected silence, but
    // "Moo" was said". Each line once, with its first failure. What no test may meet is a failure,
    // too: jumps without end, with which the test ends, and divisions by zero.
    std::vector<TestMessage> failures;
    Reached reached;
};

// Runs the test with the book as it is when it has been switched on.
TestResult runBookTest(const BookTest& test, const Book& book);

}  // namespace play
