// The points at which faults can happen, for the replaced operations that stand there. None of this
// allocates or throws.
#pragma once

#include <cstdint>

namespace quorvia::testsupport {

enum class Point_e { AddOnMemory, HostMemory, HostBlock, Read, Open, Size };

enum class ReadFault_e { None, Error, Short, Empty };

/// Whether points of the kind count now; asked before a costly look at who calls.
bool isFaultArmedFor(Point_e point);
/// Whether memory that the program's own code takes is the host's.
bool countsProgramAsHost();
/// Counts the point; true if it is to fail.
bool failsAt(Point_e point);
/// The same for reads, which fail in several ways.
ReadFault_e readFault();

void noteMessageSent();
void noteOpenFiles(std::int64_t change);

} // namespace quorvia::testsupport
