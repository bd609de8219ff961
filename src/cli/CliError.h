#pragma once

#include <stdexcept>
#include <string>

namespace sonalyx::cli {

// A command's failure as the user sees it: the text goes to standard error and
// the exit status is 1 for a user error (bad input, unreadable file) or 2 for
// wrong usage (the usage text follows).
class CliError : public std::runtime_error {
 public:
  enum class Kind { User = 1, Usage = 2 };

  CliError(Kind kind, const std::string& text) : std::runtime_error(text), m_kind(kind) {}

  static CliError user(const std::string& text) { return CliError(Kind::User, text); }
  static CliError usage(const std::string& text) { return CliError(Kind::Usage, text); }

  int exitStatus() const { return static_cast<int>(m_kind); }
  bool isUsage() const { return m_kind == Kind::Usage; }

 private:
  Kind m_kind;
};

}  // namespace sonalyx::cli
