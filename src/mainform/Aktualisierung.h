#pragma once

#include <QString>

// Fetching the newest set-up from the internet.
namespace Aktualisierung {

// What is asked before the download.
QString ladenFrage();

// The file in AppPfad that holds the address of the web server's folder in its first line. The
// server is nothing that a program should have built in.
QString adressdatei();

// The address of the set-up on the web server; empty when adressdatei() isn't there or holds no
// address of the web. Throws Dateifehler when it can't be read.
QString setupAdresse();

// What is told when there is no address, and when no program takes it.
QString keineAdresseText();
QString nichtGeöffnetText(const QString& adresse);

}  // namespace Aktualisierung
