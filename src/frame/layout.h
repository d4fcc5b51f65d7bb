#pragma once

// How to add a record
//
// 1. Declare it as a plain struct. Its fields are `std::int16_t`, `double`, `Flagge`, `FesterText<N>`,
// `Reserve<N>`,
//    `std::array<double, N>`, `Zaehlfeld<N>` or other records. Give each a start value: bytes that nothing
//    sets are 0, texts are blank.
// 2. Beside it, in the same namespace, name its fields once, in the order of the file:
//
//      template <class A>
//      constexpr void felder(A& archive, Punkt& r) {
//        archive("Name", r.Name);
//        archive("X", r.X);        // a record inside gives its fields the name "X." in front;
//        archive("", r.Rest);      // with an empty name they stand as they are
//      }
//
// 3. Pin its size: static_assert(recordSize<Punkt>() == 789);
//
// That is all: `toBytes`, `fromBytes`, `dump` and `forEachField` work for it. Records are packed, without
// gaps; all numbers are little-endian, whatever the computer. A new type of field needs a `FieldCodec`.

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/fester_text.h"
#include "frame/flagge.h"
#include "frame/layout_text.h"
#include "frame/zaehlfeld.h"

namespace korvin {

/// Bytes of a record that no one reads; carried along unchanged, 0 in a new record.
template <std::size_t N>
struct Reserve {
  std::array<std::uint8_t, N> bytes{};
  friend constexpr bool operator==(const Reserve&, const Reserve&) = default;
};

/// Stores the low bytes of `value`, lowest first.
template <std::unsigned_integral U>
constexpr void storeLittle(U value, std::byte* to) {
  for (std::size_t i = 0; i < sizeof(U); ++i) to[i] = static_cast<std::byte>((value >> (8 * i)) & 0xFFU);
}

template <std::unsigned_integral U>
constexpr U loadLittle(const std::byte* from) {
  U value = 0;
  for (std::size_t i = 0; i < sizeof(U); ++i) {
    value = static_cast<U>(value | (static_cast<U>(std::to_integer<std::uint8_t>(from[i])) << (8 * i)));
  }
  return value;
}

constexpr void storeDouble(double value, std::byte* to) {
  storeLittle(std::bit_cast<std::uint64_t>(value), to);
}
constexpr double loadDouble(const std::byte* from) {
  return std::bit_cast<double>(loadLittle<std::uint64_t>(from));
}

/// How a type of field lies in a file: its width in bytes, the way to and from there, its kind and its value
/// as text.
template <class T>
struct FieldCodec;

template <>
struct FieldCodec<std::int16_t> {
  static constexpr std::size_t width = 2;
  static constexpr FieldKind kind = FieldKind::number;
  static constexpr void store(std::int16_t v, std::byte* to) {
    storeLittle(static_cast<std::uint16_t>(v), to);
  }
  static constexpr void load(std::int16_t& v, const std::byte* from) {
    v = static_cast<std::int16_t>(loadLittle<std::uint16_t>(from));
  }
  static std::string text(std::int16_t v) { return std::to_string(v); }
};

template <>
struct FieldCodec<Flagge> {
  static constexpr std::size_t width = 2;
  static constexpr FieldKind kind = FieldKind::number;
  static constexpr void store(Flagge v, std::byte* to) { FieldCodec<std::int16_t>::store(v.raw(), to); }
  static constexpr void load(Flagge& v, const std::byte* from) {
    v = Flagge::ofRaw(static_cast<std::int16_t>(loadLittle<std::uint16_t>(from)));
  }
  static std::string text(Flagge v) { return std::to_string(v.raw()); }
};

template <>
struct FieldCodec<double> {
  static constexpr std::size_t width = 8;
  static constexpr FieldKind kind = FieldKind::number;
  static constexpr void store(double v, std::byte* to) { storeDouble(v, to); }
  static constexpr void load(double& v, const std::byte* from) { v = loadDouble(from); }
  static std::string text(double v) { return numberText(v); }
};

template <std::size_t N>
struct FieldCodec<FesterText<N>> {
  static constexpr std::size_t width = N;
  static constexpr FieldKind kind = FieldKind::text;
  static constexpr void store(const FesterText<N>& v, std::byte* to) {
    std::transform(v.bytes().begin(), v.bytes().end(), to, [](char c) { return static_cast<std::byte>(c); });
  }
  static constexpr void load(FesterText<N>& v, const std::byte* from) {
    std::transform(from, from + N, v.bytes().begin(), [](std::byte b) { return static_cast<char>(b); });
  }
  static std::string text(const FesterText<N>& v) { return recordText(v.trimmed()); }
};

template <std::size_t N>
struct FieldCodec<Reserve<N>> {
  static constexpr std::size_t width = N;
  static constexpr FieldKind kind = FieldKind::reserved;
  static constexpr void store(const Reserve<N>& v, std::byte* to) {
    std::transform(v.bytes.begin(), v.bytes.end(), to, [](std::uint8_t b) { return std::byte{b}; });
  }
  static constexpr void load(Reserve<N>& v, const std::byte* from) {
    std::transform(from, from + N, v.bytes.begin(),
                   [](std::byte b) { return std::to_integer<std::uint8_t>(b); });
  }
  static std::string text(const Reserve<N>& v) { return hexText(v.bytes); }
};

template <std::size_t N>
struct FieldCodec<std::array<double, N>> {
  static constexpr std::size_t width = 8 * N;
  static constexpr FieldKind kind = FieldKind::numbers;
  static constexpr void store(const std::array<double, N>& v, std::byte* to) {
    for (std::size_t i = 0; i < N; ++i) storeDouble(v[i], to + 8 * i);
  }
  static constexpr void load(std::array<double, N>& v, const std::byte* from) {
    for (std::size_t i = 0; i < N; ++i) v[i] = loadDouble(from + 8 * i);
  }
  static std::string text(const std::array<double, N>& v) { return numbersText(v); }
};

template <std::size_t N>
struct FieldCodec<Zaehlfeld<N>> {
  using Elements = FieldCodec<std::array<double, N + 1>>;
  static constexpr std::size_t width = Elements::width;
  static constexpr FieldKind kind = FieldKind::numbers;
  static constexpr void store(const Zaehlfeld<N>& v, std::byte* to) { Elements::store(v.elements(), to); }
  static constexpr void load(Zaehlfeld<N>& v, const std::byte* from) { Elements::load(v.elements(), from); }
  static std::string text(const Zaehlfeld<N>& v) { return Elements::text(v.elements()); }
};

template <class T>
concept RecordField = requires {
  FieldCodec<T>::width;
};

/// The name of a field inside of the records that hold it.
struct FieldName {
  const FieldName* outer = nullptr;  ///< the record around it; none for the whole record
  std::string_view name;

  /// "X.Summe"; records with an empty name leave no trace in it.
  std::string full() const {
    std::string text = outer != nullptr ? outer->full() : std::string();
    if (!text.empty() && !name.empty()) text += ".";
    return text.append(name);
  }
};

/// Walks a record's fields in file order and calls `leaf(name, offset, field)` for each.
template <class Leaf>
class FieldWalk {
 public:
  constexpr explicit FieldWalk(Leaf leaf) : leaf_(std::move(leaf)) {}

  template <class T>
  constexpr void operator()(std::string_view name, T& field) {
    const FieldName here{outer_, name};
    if constexpr (RecordField<T>) {
      leaf_(here, offset_, field);
      offset_ += FieldCodec<T>::width;
    } else {
      outer_ = &here;
      felder(*this, field);
      outer_ = here.outer;
    }
  }

  constexpr std::size_t offset() const { return offset_; }

 private:
  Leaf leaf_;
  const FieldName* outer_ = nullptr;
  std::size_t offset_ = 0;
};

/// Calls `leaf(name, offset, field)` for each field of `record`, in file order. Returns the size of the
/// record in bytes.
template <class Rec, class Leaf>
constexpr std::size_t forEachField(Rec& record, Leaf leaf) {
  FieldWalk<Leaf> walk(std::move(leaf));
  felder(walk, record);
  return walk.offset();
}

/// As above, for a record that is only looked at.
template <class Rec, class Leaf>
constexpr std::size_t forEachField(const Rec& record, Leaf leaf) {
  const auto look = [&leaf]<class T>(const FieldName& name, std::size_t offset, T& field) {
    leaf(name, offset, static_cast<const T&>(field));
  };
  // The one field list of a record serves both directions; this walk hands out constant fields only.
  return forEachField(const_cast<Rec&>(record), look);
}

/// Size of a record in the file, in bytes.
template <class Rec>
consteval std::size_t recordSize() {
  return forEachField(Rec{}, [](const FieldName&, std::size_t, const auto&) {});
}

/// The record as it lies in the file.
template <class Rec>
constexpr std::array<std::byte, recordSize<Rec>()> toBytes(const Rec& record) {
  std::array<std::byte, recordSize<Rec>()> bytes{};
  forEachField(record, [&bytes]<class T>(const FieldName&, std::size_t offset, const T& field) {
    FieldCodec<T>::store(field, bytes.data() + offset);
  });
  return bytes;
}

/// The record that lies in `bytes`. Bytes beyond its size are left aside; what is missing is as in a new
/// record.
template <class Rec>
constexpr Rec fromBytes(std::span<const std::byte> bytes) {
  Rec record{};
  auto whole = toBytes(record);
  std::copy_n(bytes.begin(), std::min(bytes.size(), whole.size()), whole.begin());
  forEachField(record, [&whole]<class T>(const FieldName&, std::size_t offset, T& field) {
    FieldCodec<T>::load(field, whole.data() + offset);
  });
  return record;
}

/// One line of a dump.
struct FieldDump {
  std::string name;    ///< "X.Summe"
  std::size_t offset;  ///< bytes from the start of the record
  std::size_t width;   ///< bytes
  FieldKind kind;
  std::string text;  ///< the value in UTF-8, as told at `FieldKind`
};

/// All fields of a record with their places and values, in file order.
template <class Rec>
std::vector<FieldDump> dump(const Rec& record) {
  std::vector<FieldDump> lines;
  forEachField(record, [&lines]<class T>(const FieldName& name, std::size_t offset, const T& field) {
    using Codec = FieldCodec<T>;
    lines.push_back({name.full(), offset, Codec::width, Codec::kind, Codec::text(field)});
  });
  return lines;
}

}  // namespace korvin
