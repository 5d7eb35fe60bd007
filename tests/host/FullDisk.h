// A disk that is full.
#ifndef GRADIX_FULLDISK_H
#define GRADIX_FULLDISK_H

#include <sys/resource.h>

#include <csignal>

// No file grows beyond a few bytes while the object lives: a disk that is full.
class FullDisk {
 public:
  FullDisk() : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_limit);
    rlimit full = m_limit;
    full.rlim_cur = 100;
    setrlimit(RLIMIT_FSIZE, &full);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &m_limit);
    std::signal(SIGXFSZ, m_handler);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  void (*m_handler)(int);
  rlimit m_limit{};
};

#endif  // GRADIX_FULLDISK_H
