// Statements in the tables' own dialect, as users' field lists bring them too: what can't be read
// is a Datenbankfehler, what can is translated alike each time, and the engine takes it.
#include <QRegularExpression>
#include <QTemporaryDir>

#include "Fuzzziel.h"
#include "core/globals.h"
#include "data/Datenbankdatei.h"

using namespace TZ_Variablen;

namespace {

constexpr int MeisteTabellen = 3;  // of one statement that is run

// A program folder with a database that holds a few rows.
class Probebetrieb {
 public:
  Probebetrieb() {
    verlange(m_ordner.isValid(), "a folder for the database");
    AppPfad = m_ordner.path() + u'/';
    DatenbankPfad = AppPfad + QStringLiteral("TOVA2.MDB");
    HeuteText = QStringLiteral("15.06.2024");
    DatenbankAnlegen();
    for (const char* zeile :
         {"insert into Bienenvolk (Volknr, Volkname, Volkstärke, Akt_im_Bestand) values ('1', "
          "'Ähre', 2.5, 'X')",
          "insert into Bienenvolk (Volknr, Volkname) values ('2', 'Ahre')",
          "insert into Honigernte (Volk_ID, Datum, Menge_kg) values (1, #06/15/2024#, 12.5)"})
      DB.Execute(QString::fromUtf8(zeile));
  }
  ~Probebetrieb() {
    DB.Close();
    Arbeitsbereich.Close();
  }
  Probebetrieb(const Probebetrieb&) = delete;
  Probebetrieb& operator=(const Probebetrieb&) = delete;

 private:
  QTemporaryDir m_ordner;
};

bool wirdAusgeführt(const QString& text, const QString& sql) {
  return (sql.startsWith(QStringLiteral("select"), Qt::CaseInsensitive) ||
          text.trimmed().startsWith(QStringLiteral("transform"), Qt::CaseInsensitive)) &&
         text.count(u',') <= 60 &&
         text.count(QStringLiteral("join"), Qt::CaseInsensitive) < MeisteTabellen;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe) {
  static const Probebetrieb betrieb;
  const QString text = QString::fromUtf8(alsBytes(daten, größe));
  QString sql;
  try {
    sql = DB.Übersetzung(text);
  } catch (const Datenbankfehler& fehler) {
    verlange(!fehler.text().isEmpty(), "a failure has a text", text);
    return 0;
  }
  verlange(DB.Übersetzung(text) == sql, "a statement is translated alike each time", text);
  if (!wirdAusgeführt(text, sql)) return 0;
  try {
    const Daten rows = DB.Lesen(text, QVariantList(text.count(u'?'), QVariant(1)));
    for (int i = 0; i < rows->zeilen(); ++i)
      for (int j = 0; j < rows->spalten(); ++j) static_cast<void>(rows->anzeige(i, j));
  } catch (const Datenbankfehler& fehler) {
    static const QRegularExpression unlesbar(QStringLiteral("\\bbei \"|sie ist unvollständig"));
    verlange(!fehler.text().contains(unlesbar),  // as a grammar error is told
             "the engine takes what was translated", text + u'\n' + sql + u'\n' + fehler.text());
  }
  return 0;
}
