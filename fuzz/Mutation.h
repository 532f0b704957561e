#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

// Makes new inputs out of known ones. The same seed gives the same inputs on every machine.
class Mutation {
 public:
  Mutation(std::uint64_t saat, std::vector<std::string> wörter, std::size_t größte)
      : m_zufall(saat), m_wörter(std::move(wörter)), m_größte(größte) {}

  // The input changed in one to eight places; what it takes from elsewhere comes from the words and
  // from the other input.
  std::string ändere(std::string eingabe, const std::string& andere);
  std::size_t bis(std::size_t grenze);  // 0 to grenze - 1; 0 for an empty range

 private:
  void einmal(std::string& eingabe, const std::string& andere);
  std::string stück(const std::string& von);

  std::mt19937_64 m_zufall;
  std::vector<std::string> m_wörter;
  std::size_t m_größte;
};

// The words of a dictionary file: a line "..." each, with \\, \" and \xAB; # begins a comment.
std::vector<std::string> wörterLesen(const std::string& pfad);
