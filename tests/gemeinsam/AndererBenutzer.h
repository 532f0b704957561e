#pragma once

#include <unistd.h>

// While one lives, a test that runs as the administrator goes on as a user without special rights,
// so that write protections hold for it as for everyone.
class AndererBenutzer {
 public:
  AndererBenutzer() : m_gewechselt(geteuid() == 0 && setresuid(Niemand, Niemand, 0) == 0) {}
  ~AndererBenutzer() {
    if (m_gewechselt && setresuid(0, 0, 0) != 0) _exit(1);
  }
  AndererBenutzer(const AndererBenutzer&) = delete;
  AndererBenutzer& operator=(const AndererBenutzer&) = delete;

  bool darfAlles() const { return geteuid() == 0; }

 private:
  static constexpr uid_t Niemand = 65534;
  bool m_gewechselt;
};
