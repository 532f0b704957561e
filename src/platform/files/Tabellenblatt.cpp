#include "platform/files/Tabellenblatt.h"

#include <xlsxwriter.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>

#include "platform/files/Dateirechte.h"
#include "platform/files/Textdatei.h"

struct Tabellenblatt::Innen {
  QString pfad;
  std::unique_ptr<QTemporaryFile> beginn;  // beside the file; goes when it isn't saved
  lxw_workbook* mappe = nullptr;
  lxw_worksheet* blatt = nullptr;
  std::array<lxw_format*, static_cast<size_t>(Form::Anzahl)> formen{};

  lxw_format* form(Form f) const { return formen[static_cast<size_t>(f)]; }
  [[noreturn]] void fehler() const;
  bool zwischendateiGanz() const;
  void prüfe(lxw_error ergebnis) const {
    if (ergebnis != LXW_NO_ERROR) fehler();
  }
};

// The file may be open in the spreadsheet program, which then locks it.
void Tabellenblatt::Innen::fehler() const {
  const QString name = QDir::toNativeSeparators(pfad);
  throw Dateifehler(
      QStringLiteral("Die Tabelle %1 kann nicht geschrieben werden. Falls sie noch in der "
                     "Tabellenkalkulation geöffnet ist, schließen Sie sie bitte dort. Prüfen Sie "
                     "sonst, ob im Ordner geschrieben werden darf und ob auf dem Datenträger noch "
                     "Platz ist.")
          .arg(name));
}

Tabellenblatt::Tabellenblatt(const QString& pfad, const QString& blattname)
    : m_innen(std::make_unique<Innen>()) {
  m_innen->pfad = pfad;
  const QFileInfo info(pfad);
  if (info.isDir() || (info.exists() && !info.isWritable())) m_innen->fehler();
  m_innen->beginn = std::make_unique<QTemporaryFile>(pfad + QStringLiteral(".XXXXXX"));
  if (!m_innen->beginn->open()) m_innen->fehler();
  m_innen->beginn->close();

  // Rows go to the disk as they come: a long list would fill the memory.
  QByteArray ordner = QFile::encodeName(QDir::tempPath());
  lxw_workbook_options wahl{};
  wahl.constant_memory = LXW_TRUE;
  wahl.tmpdir = ordner.data();
  m_innen->mappe =
      workbook_new_opt(QFile::encodeName(m_innen->beginn->fileName()).constData(), &wahl);
  if (m_innen->mappe == nullptr) m_innen->fehler();
  m_innen->blatt = workbook_add_worksheet(m_innen->mappe, blattname.toUtf8().constData());
  if (m_innen->blatt == nullptr) m_innen->fehler();

  const auto neu = [this](Form f) {
    return m_innen->formen[static_cast<size_t>(f)] = workbook_add_format(m_innen->mappe);
  };
  format_set_bold(neu(Form::Fett));
  lxw_format* fettRechts = neu(Form::FettRechts);
  format_set_bold(fettRechts);
  format_set_align(fettRechts, LXW_ALIGN_RIGHT);
  format_set_align(neu(Form::Links), LXW_ALIGN_LEFT);
  format_set_align(neu(Form::Rechts), LXW_ALIGN_RIGHT);
  lxw_format* zahl = neu(Form::Zahl);
  format_set_align(zahl, LXW_ALIGN_RIGHT);
  format_set_num_format(zahl, "#,##0.00");
}

// The library frees a workbook only by closing it, so what isn't wanted is closed into the file
// that goes.
Tabellenblatt::~Tabellenblatt() {
  if (m_innen->mappe != nullptr) workbook_close(m_innen->mappe);
}

void Tabellenblatt::setSpalte(int spalte, double zeichen, Form form) {
  const auto nummer = static_cast<lxw_col_t>(spalte);
  m_innen->prüfe(
      worksheet_set_column(m_innen->blatt, nummer, nummer, zeichen, m_innen->form(form)));
}

void Tabellenblatt::setKopfzeile(int zeile) {
  worksheet_freeze_panes(m_innen->blatt, static_cast<lxw_row_t>(zeile) + 1, 0);
}

void Tabellenblatt::text(int zeile, int spalte, const char* utf8, Form form) {
  const auto r = static_cast<lxw_row_t>(zeile);
  const auto s = static_cast<lxw_col_t>(spalte);
  lxw_error ergebnis = worksheet_write_string(m_innen->blatt, r, s, utf8, m_innen->form(form));
  if (ergebnis == LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED) {
    QString kurz = QString::fromUtf8(utf8).left(MaxText);
    if (!kurz.isEmpty() && kurz.back().isHighSurrogate()) kurz.chop(1);
    ergebnis = worksheet_write_string(m_innen->blatt, r, s, kurz.toUtf8().constData(),
                                      m_innen->form(form));
  }
  m_innen->prüfe(ergebnis);
}

void Tabellenblatt::zahl(int zeile, int spalte, double wert, Form form) {
  m_innen->prüfe(worksheet_write_number(m_innen->blatt, static_cast<lxw_row_t>(zeile),
                                        static_cast<lxw_col_t>(spalte), wert, m_innen->form(form)));
}

// The library doesn't look whether its temporary files can be written: it would make a workbook of
// what fitted on the disk. Closing copies the rows once more.
bool Tabellenblatt::Innen::zwischendateiGanz() const {
  FILE* zeilen = blatt->optimize_tmpfile;
  if (zeilen == nullptr) return true;
  if (std::fflush(zeilen) != 0 || std::ferror(zeilen) != 0) return false;
  const long länge = std::ftell(zeilen);
  std::error_code unbekannt;
  const auto platz = std::filesystem::space(QDir::tempPath().toStdU16String(), unbekannt);
  constexpr quint64 Rest = 1 << 20;
  return unbekannt || platz.available >= static_cast<quint64>(std::max(länge, 0L)) + Rest;
}

void Tabellenblatt::speichern() {
  if (!m_innen->zwischendateiGanz()) m_innen->fehler();
  m_innen->prüfe(workbook_close(std::exchange(m_innen->mappe, nullptr)));
  // A temporary file is its owner's alone; the spreadsheet is to be like any other file that this
  // user makes.
  m_innen->beginn->setPermissions(Dateirechte::für(m_innen->pfad));
  std::error_code fehler;
  std::filesystem::rename(m_innen->beginn->fileName().toStdU16String(),
                          m_innen->pfad.toStdU16String(), fehler);
  if (fehler) m_innen->fehler();
  m_innen->beginn->setAutoRemove(false);
}
