#pragma once

#include "core/speech/TranslationMarker.h"

// What the program says about itself and where its maker is found: the one place
// to change these addresses.
namespace sonalyx::ui::product {

// The product version, from the build's project version (a "major.minor.rev"
// string, as the version line of the About box shows it).
#ifndef SONALYX_PRODUCT_VERSION
#error "SONALYX_PRODUCT_VERSION must be defined by the build"
#endif
inline constexpr const char* kVersion = SONALYX_PRODUCT_VERSION;

inline constexpr const char* kAppName = "sonalyx";
inline constexpr const char* kTitle = SLX_TR("Sonalyx");

// The program's licence. eSpeak NG, which the program links, is under the GPL
// version 3 or later, so the whole is too.
inline constexpr const char* kLicence = SLX_TR("GNU General Public License, version 3 or later");

// The libraries and data the program is built with, and their licences, as the
// About box names them.
struct UsedLibrary {
  const char* name;
  const char* licence;
};
inline constexpr UsedLibrary kLibraries[] = {
    {"Qt", SLX_TR("GNU Lesser General Public License, version 3")},
    {"eSpeak NG", SLX_TR("GNU General Public License, version 3 or later")},
    {"speech-dispatcher (libspeechd)", SLX_TR("GNU Lesser General Public License, version 2.1 or later")},
    {"SDL 2", SLX_TR("zlib License")},
    {"FluidSynth", SLX_TR("GNU Lesser General Public License, version 2.1 or later")},
    {"libsndfile", SLX_TR("GNU Lesser General Public License, version 2.1 or later")},
    {"Eigen", SLX_TR("Mozilla Public License, version 2.0")},
    {"TimGM6mb sound font", SLX_TR("GNU General Public License, version 2")},
};

inline constexpr const char* kWebAddress = "https://www.quillmont.example/";
inline constexpr const char* kEmailAddress = "sonalyx@quillmont.example";

// The update manifest an external updater reads, and the one it reads when the
// program was started with exactly "-localTest".
inline constexpr const char* kUpdateManifest = "https://www.quillmont.example/autoupdate/SLX/updates.xml";
inline constexpr const char* kTestUpdateManifest = "http://test.quillmont.example/autoupdate/SLX/updates.xml";

}  // namespace sonalyx::ui::product
