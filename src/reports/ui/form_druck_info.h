#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <array>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "frame/dictionary.h"
#include "frame/fester_text.h"
#include "frame/flagge.h"
#include "frame/ui/text_entry.h"

namespace korvin {

/// What the print dialogs differ by.
struct DruckInfoArt {
  const char* name;                        ///< of the form
  std::int16_t messart;                    ///< number of the kind's title
  std::span<const char* const> diagramme;  ///< captions of the check boxes, one or two each
  std::span<const char* const> tabellen;
};

inline constexpr std::array<const char*, 1> NurXY = {"XY"};
inline constexpr std::array<const char*, 2> XUndY = {"X", "Y"};

/// The family. To add a dialog: a line here, and `DruckInfoFelder` of its record.
inline constexpr DruckInfoArt FormDruckInfoO{"FormDruckInfoO", 5502, NurXY, XUndY};
inline constexpr DruckInfoArt FormDruckInfoG{"FormDruckInfoG", 5500, XUndY, XUndY};

/// What the dialog shows and changes of a record; as many choices as its kind has boxes. All outlive it.
struct DruckInfoFelder {
  FesterText<75>& Bezeichnung;
  FesterText<75>& Bediener;
  FesterText<75>& Kommentar;
  Flagge& Geaendert;
  std::vector<std::reference_wrapper<Flagge>> diagramme;
  std::vector<std::reference_wrapper<Flagge>> tabellen;
  std::string dateiName;  ///< path of the measuring file, UTF-8
};

/// The print dialog of all kinds: texts of the report, what it shows, and where it goes. Each way out but
/// Cancel first writes texts and choices back to the record, and marks it as changed if one was touched. A
/// text that was not edited keeps its bytes. Printing closes the dialog, and so does a PDF that was saved;
/// after the preview it is there again.
class FormDruckInfo : public QDialog {
  Q_OBJECT
 public:
  /// Without a printer that command is disabled, and the dialog says why.
  FormDruckInfo(const DruckInfoArt& art, Dictionary& dictionary, DruckInfoFelder felder, bool printerThere,
                QWidget* parent);

  // The module's print entries; true if the report was put out.
  std::function<bool()> onDrucken;
  std::function<bool()> onVorschau;
  std::function<bool()> onPdf;

 private:
  enum class Danach { schliessen, schliessenWennGetan, bleiben };

  QLabel* label(const char* name, const QString& text);
  QWidget* angaben(const DruckInfoArt& art);
  QWidget* wahl(const DruckInfoArt& art);
  QWidget* befehle(bool printerThere);
  std::vector<QCheckBox*> kaestchen(const char* name, std::span<const char* const> captions,
                                    const std::vector<std::reference_wrapper<Flagge>>& flaggen);
  QPushButton* befehl(const char* name, std::int16_t text, const std::function<bool()>& entry, Danach danach);
  QString words(std::int16_t id);
  void geaendert();
  void hinweisZeigen();
  void uebernehmen();

  Dictionary& dictionary_;
  DruckInfoFelder felder_;
  std::array<TextEntry*, 3> texte_{};
  std::vector<QCheckBox*> diagramme_;
  std::vector<QCheckBox*> tabellen_;
  QLabel* hinweis_ = nullptr;
  bool geaendert_ = false;
};

}  // namespace korvin
