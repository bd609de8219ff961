#pragma once

#include <cstddef>
#include <cstdint>

// What the program accepts before it allocates anything: every input that could
// exhaust the machine is measured against these and refused with a message that
// names the limit, leaving the data and settings as they were.
namespace sonalyx::limits {

// Points in one data set, sampled, read from a file or pasted: enough for any graph
// a person explores, 56 MB of points at most.
inline constexpr std::size_t kMostPoints = 1'000'001;
// A data-set file or clipboard text larger than this cannot hold a readable table
// of kMostPoints points (64 bytes a line is generous).
inline constexpr std::uintmax_t kMostDataTextBytes = std::uintmax_t{kMostPoints} * 64;

// The play time of a graph, in whole seconds.
inline constexpr std::uint32_t kShortestPlayTime = 1;
inline constexpr std::uint32_t kLongestPlayTime = 600;

// Elements of one matrix (a 1000 x 1000 matrix is 8 MB and inverts in about a second).
inline constexpr std::size_t kMostMatrixElements = 1'000'000;

// Multiplications of one matrix power, counted as n^3 for each product of two n x n
// matrices: about a second of work, where eye(985)^1585 would take a minute.
inline constexpr double kMostMatrixPowerWork = 4e9;

// Characters of one expression or f(x): far beyond anything typed, well below what
// its compiled code could make a burden.
inline constexpr std::size_t kMostExpressionLength = 100'000;
// Characters of one matrix expression: room for the largest matrix pasted as text
// (a million elements of up to 16 characters).
inline constexpr std::size_t kMostMatrixTextLength = 16'000'000;

}  // namespace sonalyx::limits
