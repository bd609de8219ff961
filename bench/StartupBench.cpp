#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "core/settings/SettingsStore.h"

extern char** environ;

namespace sonalyx {
namespace {

namespace fs = std::filesystem;

// Kilobytes of a /proc/PID/status line such as "VmRSS:   51234 kB"; 0 when absent.
double statusKilobytes(pid_t pid, const std::string& field) {
  std::ifstream status("/proc/" + std::to_string(pid) + "/status");
  std::string line;
  while (std::getline(status, line))
    if (line.rfind(field + ":", 0) == 0) return std::stod(line.substr(field.size() + 1));
  return 0.0;
}

// From starting the desktop program to its first spoken words (the start-up
// announcement of the panel, said once the window is shown with the focus in it):
// the moment a blind user knows the program is ready. The program runs off-screen
// with self-voicing on, its speech log followed for the first line.
void startProgram(benchmark::State& state, const char* engine) {
  const fs::path folder = fs::temp_directory_path() / ("sonalyx-startup-" + std::to_string(::getpid()));
  fs::create_directories(folder);
  const fs::path settingsFile = folder / "Settings.reg";
  const fs::path log = folder / "speech.log";
  ::setenv("SONALYX_SETTINGS", settingsFile.c_str(), 1);
  SettingsStore::openDefault().SetTtsOn(true);

  std::vector<std::string> env;
  for (char** e = environ; *e; ++e) {
    const std::string entry = *e;
    if (entry.rfind("SONALYX_", 0) != 0 && entry.rfind("QT_QPA_PLATFORM=", 0) != 0) env.push_back(entry);
  }
  env.push_back("SONALYX_SETTINGS=" + settingsFile.string());
  env.push_back("SONALYX_SPEECH_LOG=" + log.string());
  env.push_back(std::string("SONALYX_SPEECH=") + engine);
  env.push_back("SONALYX_AUDIO=null");
  env.push_back("QT_QPA_PLATFORM=offscreen");
  std::vector<char*> envp;
  for (std::string& entry : env) envp.push_back(entry.data());
  envp.push_back(nullptr);
  std::string program = SONALYX_PROGRAM;
  char* argv[] = {program.data(), nullptr};

  // The program's own notes on stderr would mix with the table.
  posix_spawn_file_actions_t quiet;
  ::posix_spawn_file_actions_init(&quiet);
  ::posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  ::posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "/dev/null", O_WRONLY, 0);

  double rssMB = 0.0;
  double peakMB = 0.0;
  for (auto _ : state) {
    fs::remove(log);
    pid_t pid = 0;
    const auto start = std::chrono::steady_clock::now();
    if (::posix_spawn(&pid, program.c_str(), &quiet, nullptr, argv, envp.data()) != 0) {
      state.SkipWithError("the program did not start");
      break;
    }
    bool spoke = false;
    while (std::chrono::steady_clock::now() - start < std::chrono::seconds(20)) {
      if (fs::exists(log) && fs::file_size(log) > 0) {
        spoke = true;
        break;
      }
      std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(took.count());
    rssMB = statusKilobytes(pid, "VmRSS") / 1024.0;
    peakMB = statusKilobytes(pid, "VmHWM") / 1024.0;
    ::kill(pid, SIGTERM);
    ::waitpid(pid, nullptr, 0);
    if (!spoke) {
      state.SkipWithError("the program never spoke");
      break;
    }
  }
  ::posix_spawn_file_actions_destroy(&quiet);
  state.counters["rss_MB"] = rssMB;
  state.counters["peak_MB"] = peakMB;
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

void BM_StartToFirstWordsCaptureVoice(benchmark::State& state) {
  startProgram(state, "capture");
}
void BM_StartToFirstWordsEspeak(benchmark::State& state) {
  startProgram(state, "espeak-ng");
}

BENCHMARK(BM_StartToFirstWordsCaptureVoice)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_StartToFirstWordsEspeak)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sonalyx
