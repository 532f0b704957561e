#include "platform/controls/Kopie.h"

#include <QRegularExpression>
#include <algorithm>

namespace {

QString tabelle(const QList<QStringList>& zeilen) {
  QString html = QStringLiteral("<meta charset=\"utf-8\"><table>");
  for (const QStringList& zeile : zeilen) {
    html += QStringLiteral("<tr>");
    for (const QString& zelle : zeile) {
      // The two great spreadsheets each have their own way of saying "text".
      html += Kopie::wieFormel(zelle)
                  ? QStringLiteral("<td style=\"mso-number-format:'\\@'\" sdnum=\"1031;0;@\">")
                  : QStringLiteral("<td>");
      html += zelle.toHtmlEscaped() + QStringLiteral("</td>");
    }
    html += QStringLiteral("</tr>");
  }
  return html + QStringLiteral("</table>");
}

}  // namespace

namespace Kopie {

bool wieFormel(const QString& text) {
  static const QRegularExpression formel(QStringLiteral("\\A\\s*[=+\\-@]"));
  static const QRegularExpression zahl(
      QStringLiteral("\\A\\s*[+\\-]\\s*(\\d+|\\d{1,3}(\\.\\d{3})+)?(,\\d+)?\\s*[€%]?\\s*\\z"));
  return formel.match(text).hasMatch() &&
         (!zahl.match(text).hasMatch() ||
          std::none_of(text.begin(), text.end(), [](QChar z) { return z.isDigit(); }));
}

std::unique_ptr<QMimeData> ablage(const QList<QStringList>& zeilen) {
  QStringList texte;
  bool formeln = false;
  for (const QStringList& zeile : zeilen) {
    QStringList zellen;
    for (const QString& zelle : zeile) {
      const bool formel = wieFormel(zelle);
      formeln = formeln || formel;
      zellen += formel ? u'\'' + zelle : zelle;
    }
    texte += zellen.join(u'\t');
  }
  auto inhalt = std::make_unique<QMimeData>();
  inhalt->setText(texte.join(u'\n'));
  if (formeln) inhalt->setHtml(tabelle(zeilen));
  return inhalt;
}

}  // namespace Kopie
