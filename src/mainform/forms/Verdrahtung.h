#pragma once

// Joins what the shared controls need of the program: date completion, today, tax rates, help,
// remembered windows, tone. Call it once AppPfad is set.
namespace Verdrahtung {
void herstellen();
}
