// The driver of the fuzz programs where the compiler brings none: takes the options of libFuzzer
// that tools/fuzz gives. Inputs that lead to code which none before has reached are kept in memory
// as the ground for further ones; that needs the asan preset.
#include <sys/time.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "Fuzzziel.h"
#include "Mutation.h"

// A function that the compiler leaves as it is.
#ifdef __clang__
#define TOVA_UNVERFOLGT
#else
#define TOVA_UNVERFOLGT \
  __attribute__((no_sanitize("address", "undefined"), no_sanitize_coverage, used))
#endif

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

constexpr std::size_t Felder = 1 << 16;
constexpr int HöchsteSekunden = 60;  // of computing for one input

// Where inputs have come along so far; plain, as an array's operator would be traced itself.
unsigned char gesehen[Felder];
std::size_t letzteStelle = 0;
unsigned neue = 0;

struct Auftrag {
  long läufe = -1;     // -1: until the time is over
  long sekunden = -1;  // -1: as many runs as wanted
  std::uint64_t saat = 0;
  std::size_t größte = 4096;
  std::string fundort = "./";
  std::string wörterbuch;
  std::vector<std::string> quellen;  // files or folders of files
};

const std::string* aktuelle = nullptr;
std::string fundort;

std::string namen(const std::string& eingabe) {
  std::uint64_t summe = 14695981039346656037ULL;
  for (const char c : eingabe) summe = (summe ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
  std::array<char, 24> text{};
  std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(summe));
  return text.data();
}

// Called while the program dies: what it died of goes into a file, once.
void sichern() {
  if (aktuelle == nullptr) return;
  const std::string pfad = fundort + "fund-" + namen(*aktuelle);
  if (std::FILE* datei = std::fopen(pfad.c_str(), "wb")) {
    std::fwrite(aktuelle->data(), 1, aktuelle->size(), datei);
    std::fclose(datei);
    std::fprintf(stderr, "The input is kept as %s\n", pfad.c_str());
  }
  aktuelle = nullptr;
}

void beiSignal(int signal) {
  if (signal == SIGPROF) std::fprintf(stderr, "Too slow: more than %d s\n", HöchsteSekunden);
  sichern();
  std::signal(signal, SIG_DFL);
  std::signal(SIGABRT, SIG_DFL);
  if (signal == SIGPROF) std::abort();
  std::raise(signal);
}

void wachen() {
#ifdef __SANITIZE_ADDRESS__
  __sanitizer_set_death_callback(sichern);
#else
  for (const int signal : {SIGSEGV, SIGFPE, SIGILL, SIGBUS}) std::signal(signal, beiSignal);
#endif
  std::signal(SIGABRT, beiSignal);
  std::signal(SIGPROF, beiSignal);
}

// Gives whether the input came where none had been.
bool laufe(const std::string& eingabe) {
  aktuelle = &eingabe;
  const itimerval frist{{0, 0}, {HöchsteSekunden, 0}};
  setitimer(ITIMER_PROF, &frist, nullptr);
  neue = 0;
  letzteStelle = 0;
  // A copy of just this size, so that a read beyond its end is seen.
  const std::vector<std::uint8_t> bytes(eingabe.begin(), eingabe.end());
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  const bool etwasNeues = neue > 0;
  aktuelle = nullptr;
  return etwasNeues;
}

bool nimm(const std::string& wort, const char* name, std::string& wert) {
  const std::string anfang = std::string("-") + name + "=";
  if (wort.compare(0, anfang.size(), anfang) != 0) return false;
  wert = wort.substr(anfang.size());
  return true;
}

Auftrag lesen(int anzahl, char** worte) {
  Auftrag a;
  a.saat = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
  for (int i = 1; i < anzahl; ++i) {
    const std::string wort = worte[i];
    std::string wert;
    if (nimm(wort, "runs", wert)) {
      a.läufe = std::stol(wert);
    } else if (nimm(wort, "max_total_time", wert)) {
      a.sekunden = std::stol(wert);
    } else if (nimm(wort, "seed", wert)) {
      a.saat = std::stoull(wert);
    } else if (nimm(wort, "max_len", wert)) {
      a.größte = std::stoul(wert);
    } else if (nimm(wort, "artifact_prefix", wert)) {
      a.fundort = wert;
    } else if (nimm(wort, "dict", wert)) {
      a.wörterbuch = wert;
    } else if (wort[0] == '-') {
      std::fprintf(stderr, "Unknown option %s\n", wort.c_str());
      std::exit(2);
    } else {
      a.quellen.push_back(wort);
    }
  }
  return a;
}

std::vector<std::string> korpus(const std::vector<std::string>& quellen) {
  std::vector<std::string> pfade;
  for (const std::string& quelle : quellen) {
    if (!std::filesystem::is_directory(quelle)) {
      pfade.push_back(quelle);
      continue;
    }
    for (const auto& eintrag : std::filesystem::directory_iterator(quelle))
      if (eintrag.is_regular_file()) pfade.push_back(eintrag.path().string());
  }
  std::sort(pfade.begin(), pfade.end());
  std::vector<std::string> eingaben;
  for (const std::string& pfad : pfade) {
    std::ifstream datei(pfad, std::ios::binary);
    if (!datei) {
      std::fprintf(stderr, "Can't read %s\n", pfad.c_str());
      std::exit(2);
    }
    eingaben.emplace_back(std::istreambuf_iterator<char>(datei), std::istreambuf_iterator<char>());
  }
  return eingaben;
}

}  // namespace

// The compiler puts a call of this at each branch.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" TOVA_UNVERFOLGT void __sanitizer_cov_trace_pc() {
  const auto stelle =
      static_cast<std::size_t>(reinterpret_cast<std::uintptr_t>(__builtin_return_address(0)));
  const std::size_t feld = (stelle ^ (letzteStelle >> 1)) % Felder;
  letzteStelle = stelle;
  if (gesehen[feld] != 0) return;
  gesehen[feld] = 1;
  ++neue;
}

int main(int anzahl, char** worte) {
  const Auftrag a = lesen(anzahl, worte);
  fundort = a.fundort;
  wachen();
  std::vector<std::string> eingaben = korpus(a.quellen);
  if (eingaben.empty()) eingaben.emplace_back();
  for (const std::string& eingabe : eingaben) laufe(eingabe);
  const std::size_t vorher = eingaben.size();
  std::printf("%zu inputs, seed %llu\n", vorher, static_cast<unsigned long long>(a.saat));
  std::fflush(stdout);
  if (a.läufe == 0 || (a.läufe < 0 && a.sekunden < 0)) return 0;

  Mutation mutation(a.saat,
                    a.wörterbuch.empty() ? std::vector<std::string>() : wörterLesen(a.wörterbuch),
                    a.größte);
  const auto ende = std::chrono::steady_clock::now() + std::chrono::seconds(a.sekunden);
  long läufe = 0;
  while ((a.läufe < 0 || läufe < a.läufe) &&
         (a.sekunden < 0 || std::chrono::steady_clock::now() < ende)) {
    std::string eingabe = mutation.ändere(eingaben[mutation.bis(eingaben.size())],
                                          eingaben[mutation.bis(eingaben.size())]);
    if (laufe(eingabe)) eingaben.push_back(std::move(eingabe));
    ++läufe;
  }
  std::printf("%ld runs, %zu of them came upon something new\n", läufe, eingaben.size() - vorher);
  return 0;
}
