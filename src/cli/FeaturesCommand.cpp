#include <string>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "cli/SamplingDomain.h"
#include "core/files/DataSetFile.h"
#include "core/math/CurveFeatures.h"
#include "core/math/DataSet.h"
#include "core/math/FunctionSampler.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx::cli {

namespace {

void writeFeature(std::ostream& out, const char* what, const FeaturePoint& p) {
  out << what << '\t' << p.index << '\t' << formatNumber(p.x, "%.10g") << '\t' << formatNumber(p.y, "%.10g")
      << '\n';
}

}  // namespace

// features FILE | features --expr EXPRESSION
int runFeaturesCommand(const Arguments& args, std::ostream& out) {
  DataSet set;
  if (args.size() == 2 && args[0] == "--expr") {
    const SamplingDomain domain = SamplingDomain::fromSettings();
    FunctionSampler sampler(cliTranslator());
    std::string error;
    if (!sampler.computeFunction(set, args[1], domain.x0, domain.x1, domain.points, error))
      throw CliError::user(error);
  } else if (args.size() == 1 && args[0].rfind("--", 0) != 0) {
    set.assign(readDataSetFile(args[0]));
  } else {
    throw CliError::usage("features needs one data-set file or --expr EXPRESSION");
  }
  // The stepping commands ignore a set without data; say so rather than print nothing.
  if (!set.hasData()) throw CliError::user("The data set is empty.");

  const CurveFeatures features = listCurveFeatures(set);
  for (const TurningPoint& t : features.turningPoints)
    writeFeature(out, t.kind == Extremum::Maximum ? "max" : "min", t.point);
  for (const FeaturePoint& p : features.axisCrossings) writeFeature(out, "crossing", p);
  return 0;
}

}  // namespace sonalyx::cli
