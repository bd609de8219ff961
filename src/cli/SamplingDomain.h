#pragma once

namespace sonalyx::cli {

// Where an expression is sampled unless the command line says otherwise: the
// Data pages' domain and point count from the settings.
struct SamplingDomain {
  double x0;
  double x1;
  int points;

  static SamplingDomain fromSettings();
};

}  // namespace sonalyx::cli
