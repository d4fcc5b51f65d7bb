#pragma once

namespace korvin {

/// Tells the processor that the upper parts of its vector registers are free again.
///
/// Qt's fills and blits use their whole width and leave them in use. From then on every short vector
/// instruction, also one on a single `double`, keeps an upper part and has to wait for the one before it: a
/// loop over many points takes twice its time. To be called after painting and before such a loop; it costs a
/// nanosecond and changes no value.
void releaseVectorRegisters();

}  // namespace korvin
