#pragma once

#include <sys/resource.h>

#include <csignal>

// While it lives, no file of this process grows beyond this many bytes: a full disk.
class Dateigrenze {
 public:
  explicit Dateigrenze(rlim_t bytes) {
    m_signal = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_vorher);
    rlimit neu = m_vorher;
    neu.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &neu);
  }
  ~Dateigrenze() {
    setrlimit(RLIMIT_FSIZE, &m_vorher);
    std::signal(SIGXFSZ, m_signal);
  }
  Dateigrenze(const Dateigrenze&) = delete;
  Dateigrenze& operator=(const Dateigrenze&) = delete;

 private:
  rlimit m_vorher{};
  void (*m_signal)(int) = nullptr;
};
