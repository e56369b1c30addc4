// The library's only export. The host calls it once, after it has loaded the library.
#pragma once

/// Registers the add-on and its loader with the host and sets up what lives as long as the library.
/// A host that is too old is told so, and nothing is registered.
extern "C" void InitQuorAddOn113();
