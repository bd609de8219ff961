#include "cli/DataSetArgument.h"

#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "cli/SamplingDomain.h"
#include "core/files/DataSetFile.h"
#include "core/files/FileError.h"
#include "core/math/FunctionSampler.h"

namespace sonalyx::cli {

DataSet sampledSet(const std::string& expression) {
  const SamplingDomain domain = SamplingDomain::fromSettings();
  FunctionSampler sampler(cliTranslator());
  DataSet set;
  std::string error;
  if (!sampler.computeFunction(set, expression, domain.x0, domain.x1, domain.points, error))
    throw CliError::user(error);
  return set;
}

DataSet fileSet(const std::string& path) {
  DataSet set;
  try {
    set.assign(readDataSetFile(path));
  } catch (const FileError& e) {
    throw CliError::user(translateWith(cliTranslator(), e.what()));
  } catch (const DataSetTextError& e) {
    throw CliError::user(e.message(cliTranslator()));
  }
  return set;
}

}  // namespace sonalyx::cli
