#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace korvin::head {

/// What can go wrong with an answer. A new fault gets a letter here, a row in the table of fault_injector.cpp
/// (its option and help follow from that) and its deed in `FaultInjector::deliver`.
enum class Fault {
  hangUp,       ///< the line hangs up instead of answering, and comes back after a while
  silence,      ///< no answer
  late,         ///< the answer comes later
  previous,     ///< the answer before comes again, in place of this one
  split,        ///< the bytes come in two to five pieces with pauses
  join,         ///< the answer before comes again, and this one right behind it
  noiseBefore,  ///< one to eight random bytes before the frame
  noiseAfter,   ///< one to eight random bytes behind the frame
  drop,         ///< one byte is missing
  flip,         ///< one bit of one byte is turned over
  insert,       ///< one random byte too many
  doubled,      ///< one byte comes twice
  wrongCheck,   ///< another check character, within its range
  noEnd,        ///< the end byte is missing
  unknownKind,  ///< a kind of answer that no one knows ('x'), in a right frame
};
inline constexpr std::size_t kFaults = 15;

struct FaultInfo {
  Fault fault;
  std::string_view name;     ///< of its option and in traces
  std::string_view meaning;  ///< one line of help
};

/// All faults, in the order of the enumeration.
const std::array<FaultInfo, kFaults>& faultTable();
std::string_view faultName(Fault fault);

/// How often a fault strikes: by chance with `rate` at each answer, or at `count` answers in a row. The first
/// `skip` answers are spared.
struct Dose {
  double rate = 0;
  long count = 0;
  long skip = 0;
};

/// Reads "0.05" (a rate from 0 to 1), "3x" (a count), each with "@K" behind it to spare the first K answers;
/// nothing for any other text.
std::optional<Dose> parseDose(std::string_view text);

/// Durations of the faults in seconds.
struct FaultTimes {
  double late = 0.7;         ///< added to the answer's time
  double splitPause = 0.02;  ///< between two pieces
  double hangUp = 3;         ///< until the line is back
};

struct FaultSettings {
  std::array<Dose, kFaults> doses{};
  FaultTimes times;
  std::uint64_t seed = 1;

  Dose& dose(Fault fault) { return doses.at(static_cast<std::size_t>(fault)); }
};

/// Bytes that leave together.
struct Piece {
  double afterSeconds = 0;  ///< counted from the moment of the answer
  std::string bytes;
};

/// What becomes of one answer.
struct Delivery {
  std::vector<Piece> pieces;  ///< in the order of their times
  bool hangUp = false;
  std::vector<Fault> faults;  ///< that struck
};

/// Spoils answers. Each fault has a random sequence of its own, drawn from the seed, so the same settings
/// always spoil the same answers in the same way, and one more fault moves none of the others.
class FaultInjector {
 public:
  explicit FaultInjector(const FaultSettings& settings);

  /// Makes the frame of an answer of `columns` and spoils it. Faults that strike together add up; a hang-up
  /// and silence leave no frame to spoil.
  Delivery deliver(std::string columns, int modulus);
  /// How often each fault struck, by the enumeration.
  const std::array<long, kFaults>& struck() const { return struck_; }
  const FaultTimes& times() const { return settings_.times; }

 private:
  std::mt19937_64& generator(Fault fault) { return generators_.at(static_cast<std::size_t>(fault)); }
  bool strikes(Fault fault);
  std::size_t below(Fault fault, std::size_t limit);
  std::string randomBytes(Fault fault, std::size_t count);
  std::vector<Fault> drawAll();
  std::string spoiledFrame(const std::string& columns, int modulus, const Delivery& delivery);
  void spoilBytes(std::string& frame, const Delivery& delivery);
  std::vector<Piece> cut(const std::string& bytes);

  FaultSettings settings_;
  std::array<std::mt19937_64, kFaults> generators_;
  std::array<long, kFaults> struck_{};
  long answers_ = 0;
  std::string previousFrame_;
};

}  // namespace korvin::head
