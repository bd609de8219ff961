#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/pages/FieldRefusal.h"
#include "core/speech/Translator.h"

namespace sonalyx {

class SettingsStore;

// The Plot page's typed fields without their window: the function's domain and
// number of points and the graph range, with the two auto-scale boxes.
//
// While the user types, every field or pair that makes sense is stored at once, so
// the graph follows (storeAccepted); leaving the page checks everything in the
// page's order and refuses the first field that does not (check). A field that
// auto-scaling switches off is never refused and is stored only when it makes
// sense.
struct PlotPageForm {
  enum Field : int { Start, Finish, Points, XMin, XMax, YMin, YMax, kFieldCount };

  std::array<std::string, kFieldCount> text;
  bool autoScaleX = false;
  bool autoScaleY = false;

  // The fields as the settings hold them ("%.10g").
  static PlotPageForm fromSettings(const SettingsStore& store);

  // Whether the user can edit a field: the range fields follow their auto-scale box.
  bool enabled(Field field) const;
  // The first field that cannot be stored, and why.
  std::optional<FieldRefusal> check(const Translator& translate = {}) const;
  // Stores what makes sense; true when the graph range changed.
  bool storeAccepted(const SettingsStore& store) const;
};

}  // namespace sonalyx
