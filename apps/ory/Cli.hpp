#pragma once

// The door to CLI11. Its headers include <iostream>, whose static initializer builds eight streams and a locale at each
// start of the process: more time than all other starting work of the command together, for streams that it never uses.
// So CLI11 sees their declarations and the initializer stays out. What writes to std::cout in this program includes
// <iostream> itself, after this header.
#include <istream>
#include <ostream>

#if defined(__GLIBCXX__) && !defined(_GLIBCXX_IOSTREAM)
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,cert-dcl58-cpp)
#define _GLIBCXX_IOSTREAM
namespace std {
extern istream cin;
extern ostream cout;
extern ostream cerr;
extern ostream clog;
}  // namespace std
#include <CLI/CLI.hpp>
#undef _GLIBCXX_IOSTREAM
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,cert-dcl58-cpp)
#else
#include <CLI/CLI.hpp>
#endif
