#pragma once

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// A fuzz program defines this one function. It is called with one input after another, in the same
// process, and returns 0. What must never be ends the program: a crash, an exception that nobody
// caught, a promise of `verlange` that doesn't hold.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe);

inline QByteArray alsBytes(const std::uint8_t* daten, std::size_t größe) {
  return {reinterpret_cast<const char*>(daten), static_cast<qsizetype>(größe)};
}

inline void verlange(bool gilt, const char* versprechen, const QString& näheres = {}) {
  if (gilt) return;
  std::fprintf(stderr, "Broken promise: %s\n%s\n", versprechen, qUtf8Printable(näheres));
  std::abort();
}
