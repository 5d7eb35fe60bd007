// Hashes that a hostile class file cannot aim at: a polynomial modulo a prime at a point drawn anew by each
// process. Two keys of n digits collide with a probability of at most n / 2^32, whoever chose them.
#ifndef GRADIX_SEEDEDHASH_H
#define GRADIX_SEEDEDHASH_H

#include <cstddef>
#include <cstdint>
#include <random>
#include <string_view>

class SeededHash {
 public:
  size_t operator()(std::string_view text) const {
    uint64_t hash = text.size() % kPrime;
    for (const char byte : text) hash = Add(hash, static_cast<unsigned char>(byte));
    return static_cast<size_t>(hash);
  }

  size_t operator()(uint64_t key) const {
    return static_cast<size_t>(Add(Add(key >> 32U, key & UINT32_MAX), 0));
  }

 private:
  static constexpr uint64_t kPrime = 4294967291;  // the largest below 2^32

  static uint64_t Add(uint64_t hash, uint64_t digit) { return (hash * Point() + digit) % kPrime; }

  static uint64_t Point() {
    static const uint64_t point = std::random_device()() % (kPrime - 1) + 1;
    return point;
  }
};

#endif  // GRADIX_SEEDEDHASH_H
