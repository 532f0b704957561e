#pragma once

#include <chrono>
#include <functional>
#include <optional>

// Looks for a printer without holding up the program: a print server that is switched off or a dead
// network lets the system's list of printers wait for many seconds.
namespace Druckersuche {

constexpr std::chrono::milliseconds Frist{250};

// Whether the system knows a printer. Waits as long as the system does.
bool systemHatDrucker();

// What the question gives; empty when it hasn't answered within the time or has failed. An
// unanswered question goes on in a thread of its own, and its answer is dropped, so it may only use
// what it holds itself.
std::optional<bool> antwort(std::function<bool()> frage = systemHatDrucker,
                            std::chrono::milliseconds frist = Frist);

}  // namespace Druckersuche
