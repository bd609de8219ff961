#include "cli/SamplingDomain.h"

namespace sonalyx::cli {

SamplingDomain SamplingDomain::fromSettings() {
  return {-10.0, 10.0, 501};
}

}  // namespace sonalyx::cli
