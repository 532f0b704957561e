#include "output/Textliste.h"

#include <algorithm>

#include "core/globals.h"
#include "core/settings.h"
#include "output/Zelltext.h"
#include "platform/files/Dateischreiber.h"
#include "platform/files/Textdatei.h"

namespace {

constexpr int Schritt = 1000;  // rows between two reports of progress
constexpr std::string_view Zeilenende = "\r\n";

// A cell in one line: a line break and a tab become one blank each.
void einzeilig(std::string& text) {
  if (text.find_first_of("\r\n\t") == std::string::npos) return;
  size_t ziel = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    const char c = text[i];
    text[ziel++] = c == '\r' || c == '\n' || c == '\t' ? ' ' : c;
  }
  text.resize(ziel);
}

// Nothing but plain characters, as in most cells: nothing to do.
bool istSchlicht(const std::string& text) {
  bool schlicht = true;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    schlicht = schlicht & (byte >= ' ') & (byte < 0x80);
  }
  return schlicht;
}

// One line in the code page, in which a character is a byte.
void fürDieListe(std::string& text) {
  if (istSchlicht(text)) return;
  einzeilig(text);
  const QByteArray bytes =
      Textdatei::nachCp1252(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
  text.assign(bytes.constData(), static_cast<size_t>(bytes.size()));
}

std::string codepage(const QString& text) {
  std::string bytes = text.toStdString();
  fürDieListe(bytes);
  return bytes;
}

// All cells of the list as they are written, row by row, in one piece of memory.
class Zellen {
 public:
  Zellen(const Ausgabeliste& liste, int spalten) : m_liste(liste), m_spalten(spalten) {
    m_längen.reserve(static_cast<size_t>(liste.zeilen()) * static_cast<size_t>(spalten));
    for (int i = 0; i < spalten; ++i) {
      m_kopf.push_back(codepage(liste.überschrift(i)));
      m_breiten.push_back(m_kopf.back().size());
    }
  }

  void dazu(int zeile) {
    const int block = m_liste.blockzeile(zeile);
    for (int i = 0; i < m_spalten; ++i) {
      m_zelle.clear();
      Zelltext::anhängen(m_zelle, *m_liste.daten(), block, i);
      fürDieListe(m_zelle);
      m_texte += m_zelle;
      const auto nummer = static_cast<size_t>(i);
      m_breiten[nummer] = std::max(m_breiten[nummer], m_zelle.size());
      const bool rechts = Zelltext::zahl(*m_liste.daten(), block, i).has_value();
      m_längen.push_back(static_cast<quint32>(m_zelle.size()) << 1 | (rechts ? 1U : 0U));
    }
  }

  // The next row, in the order in which they were added.
  void zeileNach(std::string& ziel, const std::string& trenner, bool schreiben) {
    for (size_t i = 0; i < static_cast<size_t>(m_spalten); ++i) {
      const quint32 was = m_längen[m_nächste++];
      const size_t länge = was >> 1;
      if (schreiben) {
        if (i > 0) ziel += trenner;
        const size_t blanks = m_breiten[i] - länge;
        if (was & 1) ziel.append(blanks, ' ');
        ziel.append(m_texte, m_stelle, länge);
        if (!(was & 1)) ziel.append(blanks, ' ');
      }
      m_stelle += länge;
    }
    if (schreiben) ziel += Zeilenende;
  }

  std::string kopfzeile(const std::string& trenner) const {
    std::string zeile;
    for (size_t i = 0; i < m_kopf.size(); ++i) {
      if (i > 0) zeile += trenner;
      zeile += m_kopf[i];
      zeile.append(m_breiten[i] - m_kopf[i].size(), ' ');
    }
    return zeile;
  }

 private:
  const Ausgabeliste& m_liste;
  int m_spalten;
  std::vector<std::string> m_kopf;
  std::vector<size_t> m_breiten;
  std::vector<quint32> m_längen;  // twice the length, plus 1 for a number
  std::string m_texte;
  std::string m_zelle;
  size_t m_nächste = 0;
  size_t m_stelle = 0;
};

}  // namespace

namespace Textliste {

QString datei() { return TZ_Variablen::AppPfad + QStringLiteral("LISTE.TXT"); }

QString trennzeichen() {
  const QString& gewählt = TZ_Variablen::EinstellungenText[Textslots.trennzeichen];
  return gewählt.isEmpty() ? TrennzeichenStandard : gewählt;
}

void schreiben(const QString& pfad, const Ausgabeliste& liste, const Listenkopf& kopf,
               const QString& trennzeichen, const Fortschritt& fortschritt) {
  const int zeilen = liste.zeilen();
  const std::string trenner = codepage(trennzeichen);
  Zellen zellen(liste, std::min(liste.spalten(), Ausgabeliste::MaxSpalten));
  for (int i = 0; i < zeilen; ++i) {
    zellen.dazu(i);
    if (fortschritt && i % Schritt == 0) fortschritt(i / 2, zeilen);
  }

  Dateischreiber datei(pfad);
  std::string& puffer = datei.puffer();
  if (!kopf.datum.isEmpty())
    puffer.append("Datum: ").append(codepage(kopf.datum)).append(Zeilenende);
  if (!kopf.kopftext.isEmpty()) puffer.append(codepage(kopf.kopftext)).append(Zeilenende);
  if (!puffer.empty()) puffer.append(Zeilenende);
  const std::string kopfzeile = zellen.kopfzeile(trenner);
  puffer.append(kopfzeile).append(Zeilenende);
  puffer.append(kopfzeile.size(), '-').append(Zeilenende);
  for (int i = 0; i < zeilen; ++i) {
    const bool trennzeile = liste.istTrennzeile(i);
    if (trennzeile)
      puffer.append(Zeilenende).append(Zeilenende).append(kopfzeile).append(Zeilenende);
    zellen.zeileNach(puffer, trenner, !trennzeile);
    datei.weiter();
    if (fortschritt && i % Schritt == 0) fortschritt((zeilen + i) / 2, zeilen);
  }
  datei.fertig();
}

}  // namespace Textliste
