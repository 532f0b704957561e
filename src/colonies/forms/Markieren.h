#pragma once

class QWidget;

// The ways between marked rows of hauptliste() and selected colonies in the table, as the main
// form's menu offers them. Boxes and the form open over the given window. All throw
// Datenbankfehler.

// Opens TV_Selektieren; afterwards offers to mark what the list shows as selected.
void völkerSelektieren(QWidget* fenster);
// Marks the rows whose colonies are selected, and no others; the first of them becomes current.
void selektierteMarkieren(QWidget* fenster);
// Selects the colonies of the marked rows and no others, and reads the list anew.
void markierteSelektieren();
