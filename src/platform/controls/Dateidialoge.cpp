#include "platform/controls/Dateidialoge.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>
#include <deque>
#include <optional>

#include "platform/controls/Bauteile.h"
#include "platform/controls/Meldungen.h"

struct Dateidialoge::Probe::Innen {
  struct Antwort {
    std::optional<QString> titel;
    QString pfad;
  };
  std::deque<Antwort> antworten;
  QStringList fehler;
};

using Bauteile::fensterDarunter;

namespace {

Dateidialoge::Probe::Innen* probe = nullptr;

QString geprobt(const QString& titel) {
  if (probe->antworten.empty()) {
    probe->fehler += QStringLiteral("Nicht erwartet: Dialog \"%1\"").arg(titel);
    return {};
  }
  const auto antwort = probe->antworten.front();
  probe->antworten.pop_front();
  if (antwort.titel && *antwort.titel != titel) {
    probe->fehler +=
        QStringLiteral("Erwartet: Dialog \"%1\", gekommen: \"%2\"").arg(*antwort.titel, titel);
    return {};
  }
  return antwort.pfad;
}

// The toolkit's own dialog, since the system's speaks the system's language.
void vorbereiten(QFileDialog& dialog, const QString& annehmen) {
  dialog.setObjectName(QStringLiteral("dateidialog"));
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Suchen in:"));
  dialog.setLabelText(QFileDialog::FileName, QStringLiteral("Datei&name:"));
  dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Dateien des Typs:"));
  dialog.setLabelText(QFileDialog::Accept, annehmen);
  dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Abbrechen"));
}

// "pdf" of "PDF-Datei (*.pdf)"; nothing of "Alle Dateien (*)".
QString endungVon(const QString& filter) {
  static const QRegularExpression muster(QStringLiteral("\\*\\.(\\w+)"));
  return muster.match(filter).captured(1);
}

QString gefragt(QFileDialog& dialog, const QString& titel) {
  if (probe != nullptr) return geprobt(titel);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().first();
}

}  // namespace

namespace Dateidialoge {

QString öffnen(QWidget* über, const QString& titel, const QString& ordner, const QString& filter) {
  QFileDialog dialog(fensterDarunter(über), titel, ordner, filter);
  vorbereiten(dialog, QStringLiteral("Ö&ffnen"));
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return gefragt(dialog, titel);
}

QString speichern(QWidget* über, const QString& titel, const QString& vorschlag,
                  const QString& filter, const QString& endung) {
  const QFileInfo wunsch(vorschlag);
  QFileDialog dialog(fensterDarunter(über), titel, wunsch.absolutePath(), filter);
  vorbereiten(dialog, QStringLiteral("&Speichern"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  const auto setEndung = [&](const QString& f) {
    dialog.setDefaultSuffix(endung.isEmpty() ? endungVon(f) : endung);
  };
  setEndung(dialog.selectedNameFilter());
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, setEndung);
  dialog.selectFile(wunsch.fileName());
  for (;;) {
    QString pfad = gefragt(dialog, titel);
    if (pfad.isEmpty()) return {};
    if (!dialog.defaultSuffix().isEmpty() && QFileInfo(pfad).suffix().isEmpty())
      pfad += u'.' + dialog.defaultSuffix();
    if (!QFileInfo::exists(pfad)) return pfad;
    const QString frage =
        QStringLiteral("Die Datei %1 gibt es schon. Soll sie überschrieben werden?")
            .arg(QDir::toNativeSeparators(pfad));
    if (Meldungen::Frage(frage, Meldungen::Vorgabe::Nein, über)) return pfad;
  }
}

QString dokumente() {
  const QString ordner = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return ordner.isEmpty() || !QDir(ordner).exists() ? QDir::homePath() : ordner;
}

QString ordnerWählen(QWidget* über, const QString& titel, const QString& ordner) {
  QFileDialog dialog(fensterDarunter(über), titel, ordner);
  vorbereiten(dialog, QStringLiteral("&Auswählen"));
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  return gefragt(dialog, titel);
}

Probe::Probe() : m_innen(new Innen) { probe = m_innen; }

Probe::~Probe() {
  const QString rest = fehler();
  if (!rest.isEmpty())
    qCritical("Nicht abgefragte Unterschiede der Probe:\n%s", qUtf8Printable(rest));
  if (probe == m_innen) probe = nullptr;
  delete m_innen;
}

Probe& Probe::antwort(const QString& pfad) {
  m_innen->antworten.push_back({std::nullopt, pfad});
  return *this;
}

Probe& Probe::antwort(const QString& titel, const QString& pfad) {
  m_innen->antworten.push_back({titel, pfad});
  return *this;
}

QString Probe::fehler() {
  QStringList alle = m_innen->fehler;
  for (const auto& rest : m_innen->antworten)
    alle += QStringLiteral("Nicht abgeholt: \"%1\"").arg(rest.pfad);
  m_innen->fehler.clear();
  m_innen->antworten.clear();
  return alle.join(u'\n');
}

}  // namespace Dateidialoge
