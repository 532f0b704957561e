#pragma once

#include <QLabel>

class QTimer;

// What an entry field says about a key it can't take: a few words above the field, below it where
// there is no room. It takes no room in the form, no focus and no click.
class Feldhinweis : public QLabel {
 public:
  explicit Feldhinweis(QWidget* feld);

  // Shows the words, and gives them to those who don't see the screen as the field's description.
  void zeige(const QString& text);
  void verberge();
  // The user has gone on: the words stay a moment longer, so that they can still be read.
  void verblasse();

 protected:
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  void platzieren();

  QWidget* m_feld;
  QTimer* m_uhr;
  QString m_beschreibung;  // what the field's description was
};
