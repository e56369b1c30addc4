// Makes one thing of the whole process fail, by the count of such things: an allocation of the
// add-on or of the host, a read, an open. The operations that they go through are replaced in the
// program that links this, so that the built libraries meet the faults with nothing changed in
// them. Only what happens while a fault is armed counts.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvia::testsupport {

/// What fails. "FromOn": and every later one of the kind.
enum class Fault_e {
    AddOnMemoryOnce, // operator new, called by the add-on or by what it calls
    AddOnMemoryFromOn,
    HostMemoryOnce, // operator new, malloc and calloc, called by the reference host
    MemoryFromOn,   // both of these
    HostBlockOnce,  // what the add-on asks of QuorUtilStringAlloc
    HostBlockFromOn,
    ReadFails, // EIO
    ReadFailsFromOn,
    ReadIsShort, // half of the bytes that are there, at least one
    ReadIsShortFromOn,
    ReadComesUpEmpty, // as at the end of the file
    ReadComesUpEmptyFromOn,
    OpenFails, // EMFILE
    OpenFailsFromOn,
    SizeFails, // EIO, where an open file is asked for its state
    SizeFailsFromOn
};

const std::vector<Fault_e>& allFaults();
/// A word of letters, such as "ReadIsShort".
std::string nameOf(Fault_e fault);
std::optional<Fault_e> faultNamed(std::string_view name);
/// Whether memory is what there is none of, and whether it is the host's.
bool isOfMemory(Fault_e fault);
bool isHostsOwn(Fault_e fault);

/// The files whose names begin with `folder` are those whose opens and reads count.
void watchFilesOf(const std::string& folder);

/// Whose memory that is which the code of the test program itself takes: a program's that is under
/// test belongs to the host.
enum class ProgramMemory_e { NeverFails, IsTheHosts };

/// The `n`-th thing of the kind from now, from 1, fails. Replaces what was armed.
void armFault(Fault_e fault, std::int64_t n,
              ProgramMemory_e programMemory = ProgramMemory_e::NeverFails);
/// Nothing fails any more.
void disarmFault();

/// Since the last armFault: things of the armed kind, failed or not.
std::int64_t faultPoints();
/// Since the last armFault: messages that the add-on sent, whether or not the host had the memory
/// to keep them.
std::int64_t messagesSent();
/// Watched files that are open now.
std::int64_t openFiles();

/// While it lives nothing fails and no point counts: for the test's own work.
class FaultPause {
public:
    FaultPause();
    ~FaultPause();
    FaultPause(const FaultPause&) = delete;
    FaultPause& operator=(const FaultPause&) = delete;
};

} // namespace quorvia::testsupport
