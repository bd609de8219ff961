#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

#include "core/speech/Translator.h"

namespace sonalyx {

// Text that is not a table of points: a file or the clipboard. what() is the
// English message; message() says it in the user's language.
class DataSetTextError : public std::runtime_error {
 public:
  enum Problem { NotTwoNumbers, NoPoints, TooManyPoints, TooLarge };

  explicit DataSetTextError(Problem problem, std::size_t line = 0);

  Problem problem() const { return m_problem; }
  std::size_t line() const { return m_line; }  // from 1; 0 for the whole text
  // "Line 3 does not hold two numbers.", "No points were found.", or that the text
  // is beyond what a data set holds.
  std::string message(const Translator& translate = {}) const;

 private:
  Problem m_problem;
  std::size_t m_line;
};

}  // namespace sonalyx
