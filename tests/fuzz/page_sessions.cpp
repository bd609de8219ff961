// Lines typed into the Evaluator and Matrix pages, split at new lines, with "\x01"
// for the Up arrow and "\x02" for Down: no line may crash, hang or exhaust memory;
// every line Enter is pressed on is handled and shows a result or a reason.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/pages/EvaluatorSession.h"
#include "core/pages/MatrixSession.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  sonalyx::EvaluatorSession evaluator;
  sonalyx::MatrixSession matrix;
  std::size_t start = 0;
  while (start <= input.size()) {
    const std::size_t end = std::min(input.find('\n', start), input.size());
    const std::string line(input.substr(start, end - start));
    if (line == "\x01") {
      evaluator.recallUp();
      matrix.recallUp();
    } else if (line == "\x02") {
      evaluator.recallDown();
      matrix.recallDown();
    } else if (!line.empty()) {
      const auto shown = evaluator.enter(line);
      if (!shown.handled || shown.resultText.empty()) std::abort();
      const auto edited = matrix.enter(line);
      if (!edited.handled) std::abort();
    }
    start = end + 1;
  }
  return 0;
}
