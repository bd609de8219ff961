// The settings file as a user or another program may leave it: parsing never
// fails, and a parsed document serialised and parsed again holds the same values,
// whose second serialisation is the first.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/settings/RegFileDocument.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  sonalyx::RegFileDocument document = sonalyx::RegFileDocument::parse(bytes);
  constexpr std::string_view kKey = "HKEY_CURRENT_USER\\Software\\Quillmont\\SLX3\\CurrentVersion\\Settings";
  const auto values = document.values(kKey);
  document.setValue(kKey, "rate", sonalyx::RegistryValue::fromDword(50));
  const std::string once = document.serialize();
  const sonalyx::RegFileDocument again = sonalyx::RegFileDocument::parse(once);
  if (again.serialize() != once) std::abort();
  const auto rate = again.value(kKey, "rate");
  if (!rate || !(*rate == sonalyx::RegistryValue::fromDword(50))) std::abort();
  (void)values;
  return 0;
}
