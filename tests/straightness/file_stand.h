#pragma once

#include <gtest/gtest.h>

#include <string>

#include "frame/posix_file_system.h"
#include "straightness/straightness_file.h"
#include "support/faulty_file_system.h"
#include "support/test_files.h"
#include "support/test_ports.h"

namespace korvin {

/// The file operations of straightness over a real folder, with everything else in memory.
class StraightnessFileStand : public ::testing::Test {
 protected:
  GeradDateien files(FileSystem& fileSystem) {
    return GeradDateien({fileSystem, messages, meldung, dictionary, profil, system, formgera});
  }
  bool load(const std::string& name) { return files(disk).g_DateiLaden(name); }
  bool save(const std::string& name) { return files(disk).g_DateiSpeichern(name); }
  bool loadReference(const std::string& name) { return load(folder.copyOf("reference/" + name)); }
  GeradReihe& series() { return formgera.reihe(); }
  GeradDatei& image() { return formgera.bild(); }

  /// A series of `count` points at distances of 100 mm, readings by their number.
  static GeradReihe seriesOf(std::int16_t count) {
    GeradReihe made;
    made.Linie.AnzMPs = count;
    made.Linie.Distanz = 100.0 * (count - 1);
    ReiheLeeren(made);
    for (std::size_t i = 1; i <= made.X.Wert.anzahl(); ++i) {
      made.X.Wert.at(i) = static_cast<double>(i) * 0.001;
      made.Y.Wert.at(i) = static_cast<double>(i) * -0.002;
    }
    return made;
  }
  void measure(std::int16_t count) { series() = seriesOf(count); }

  const test::TestMessages::Shown& onlyMessage() {
    EXPECT_EQ(messages.shown.size(), 1U);
    return messages.shown.at(0);
  }
  void answer(MessageAnswer a) { messages.answers.push_back(a); }

  test::TestFolder folder;
  test::UnflushedFileSystem disk;
  test::TestMessages messages;
  test::TestDictionary dictionary;
  test::MemorySettingsTree tree;
  Profil profil{tree};
  Meldung meldung;
  Systemwerte system;
  FORMGERA formgera;
};

}  // namespace korvin
