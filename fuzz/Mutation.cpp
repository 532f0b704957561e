#include "Mutation.h"

#include <algorithm>
#include <fstream>

std::size_t Mutation::bis(std::size_t grenze) {
  return grenze == 0 ? 0 : static_cast<std::size_t>(m_zufall() % grenze);
}

std::string Mutation::stück(const std::string& von) {
  const std::size_t anfang = bis(von.size());
  return von.substr(anfang, 1 + bis(std::min<std::size_t>(von.size() - anfang, 64)));
}

void Mutation::einmal(std::string& eingabe, const std::string& andere) {
  const std::size_t ort = bis(eingabe.size() + 1);
  const bool innen = ort < eingabe.size();
  switch (bis(9)) {
    case 0:
      if (innen) eingabe[ort] = static_cast<char>(eingabe[ort] ^ (1 << bis(8)));
      break;
    case 1:
      if (innen) eingabe[ort] = static_cast<char>(bis(256));
      break;
    case 2:
      eingabe.insert(ort, 1, static_cast<char>(bis(256)));
      break;
    case 3:
      if (innen) eingabe.erase(ort, 1 + bis(std::min<std::size_t>(eingabe.size() - ort, 16)));
      break;
    case 4:
      if (innen) eingabe.insert(bis(eingabe.size() + 1), stück(eingabe));
      break;
    case 5:
    case 6:
      if (!m_wörter.empty()) eingabe.insert(ort, m_wörter[bis(m_wörter.size())]);
      break;
    case 7:
      if (!andere.empty()) eingabe.insert(ort, stück(andere));
      break;
    default:  // the rest of the other one
      if (!andere.empty()) eingabe = eingabe.substr(0, ort) + andere.substr(bis(andere.size()));
      break;
  }
}

std::string Mutation::ändere(std::string eingabe, const std::string& andere) {
  for (std::size_t mal = 1 + bis(8); mal > 0; --mal) einmal(eingabe, andere);
  if (eingabe.size() > m_größte) eingabe.resize(m_größte);
  return eingabe;
}

namespace {

int hexwert(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return 0;
}

std::string wort(const std::string& zeile, std::size_t von, std::size_t bis) {
  std::string text;
  for (std::size_t i = von; i < bis; ++i) {
    if (zeile[i] != '\\' || i + 1 >= bis) {
      text += zeile[i];
    } else if (zeile[i + 1] == 'x' && i + 3 < bis) {
      text += static_cast<char>(hexwert(zeile[i + 2]) * 16 + hexwert(zeile[i + 3]));
      i += 3;
    } else {
      text += zeile[++i];
    }
  }
  return text;
}

}  // namespace

std::vector<std::string> wörterLesen(const std::string& pfad) {
  std::vector<std::string> wörter;
  std::ifstream datei(pfad);
  for (std::string zeile; std::getline(datei, zeile);) {
    if (zeile.empty() || zeile[0] == '#') continue;
    const std::size_t von = zeile.find('"');
    const std::size_t bis = zeile.rfind('"');
    if (von != std::string::npos && bis > von + 1) wörter.push_back(wort(zeile, von + 1, bis));
  }
  return wörter;
}
