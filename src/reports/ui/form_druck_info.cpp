#include "reports/ui/form_druck_info.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

#include "frame/cp1252.h"
#include "frame/pfade.h"
#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr int Feldlaenge = 75;
constexpr double Feldbreite = 460;
constexpr std::int16_t TextDateiinformation = 3001;
constexpr std::int16_t TextBediener = 3008;
constexpr std::int16_t TextKommentar = 3009;
constexpr std::int16_t TextAbbrechen = 3020;
constexpr std::int16_t TextBezeichnung = 3044;
constexpr std::int16_t TextPfad = 3049;
constexpr std::int16_t TextDatei = 3050;
constexpr std::int16_t TextTitel = 7420;
constexpr std::int16_t TextPrint = 7421;
constexpr std::int16_t TextDiagramm = 7422;
constexpr std::int16_t TextTabelle = 7423;
constexpr std::int16_t TextDrucken = 7424;
constexpr std::int16_t TextVorschau = 7425;
constexpr std::int16_t TextPdf = 7426;
constexpr std::int16_t TextKeinDrucker = 7427;
constexpr std::int16_t TextNichtsGewaehlt = 7428;

QString indexed(const char* name, std::size_t index) {
  return QStringLiteral("%1(%2)").arg(QString::fromLatin1(name)).arg(index);
}

void soften(QLabel& label) {
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, themeColour(ThemeColour::softText));
  label.setPalette(palette);
}

}  // namespace

FormDruckInfo::FormDruckInfo(const DruckInfoArt& art, Dictionary& dictionary, DruckInfoFelder felder,
                             bool printerThere, QWidget* parent)
    : QDialog(parent), dictionary_(dictionary), felder_(std::move(felder)) {
  setObjectName(QString::fromLatin1(art.name));
  setWindowTitle(words(TextTitel));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(scaled(20), scaled(18), scaled(20), scaled(16));
  rows->setSpacing(scaled(14));
  rows->addWidget(angaben(art));
  rows->addWidget(wahl(art));
  hinweis_ = label("lblHinweis", {});
  hinweis_->setWordWrap(true);
  soften(*hinweis_);
  rows->addWidget(hinweis_);
  rows->addWidget(befehle(printerThere));
  hinweis_->setMinimumHeight(hinweis_->fontMetrics().height() * (printerThere ? 1 : 2));
  hinweisZeigen();
  geaendert_ = false;
}

QString FormDruckInfo::words(std::int16_t id) {
  return qText(dictionary_.DicText(id));
}

// ---- Building ----

QLabel* FormDruckInfo::label(const char* name, const QString& text) {
  auto* made = new QLabel(text, this);
  made->setObjectName(QString::fromLatin1(name));
  made->setTextFormat(Qt::PlainText);
  return made;
}

QWidget* FormDruckInfo::angaben(const DruckInfoArt& art) {
  struct Row {
    const char* name;
    std::int16_t text;
    const FesterText<Feldlaenge>& value;
  };
  const std::array<Row, 3> entries = {{{"lblBezeichnung", TextBezeichnung, felder_.Bezeichnung},
                                       {"lblBediener", TextBediener, felder_.Bediener},
                                       {"lblKommentar", TextKommentar, felder_.Kommentar}}};
  const auto caption = [this](std::int16_t text) { return words(text) + QLatin1Char(':'); };
  const GeteilterPfad pfad = pfadTeilen(felder_.dateiName);

  auto* area = new QWidget(this);
  auto* grid = new QGridLayout(area);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(scaled(14));
  grid->setVerticalSpacing(scaled(8));
  QLabel* heading = label("lblDateiInfo", words(TextDateiinformation));
  heading->setFont(themeFont(1.15, true));
  grid->addWidget(heading, 0, 0);
  grid->addWidget(label("lblMessart", words(art.messart)), 0, 1);
  const std::array<std::pair<const char*, QString>, 2> places = {
      {{"lblPfad", qText(pfad.ordner)}, {"lblDatei", qText(pfad.name)}}};
  int row = 1;
  for (const auto& [name, value] : places) {
    auto* its = new QLabel(caption(row == 1 ? TextPfad : TextDatei), this);
    soften(*its);
    grid->addWidget(its, row, 0);
    QLabel* shown = label(name, value);
    shown->setTextInteractionFlags(Qt::TextSelectableByMouse);
    shown->setWordWrap(true);
    grid->addWidget(shown, row++, 1);
  }
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const Row& its = entries.at(i);
    auto* entry = new TextEntry(dictionary_, Feldlaenge, this);
    entry->setObjectName(indexed("TextDateiInfo", i));
    entry->setMinimumWidth(scaled(Feldbreite));
    entry->setValue(vonCp1252(its.value.trimmed()));
    entry->setModified(false);
    connect(entry, &QLineEdit::textChanged, this, &FormDruckInfo::geaendert);
    QLabel* its_label = label(its.name, caption(its.text));
    its_label->setBuddy(entry);
    grid->addWidget(its_label, row, 0);
    grid->addWidget(entry, row++, 1);
    texte_.at(i) = entry;
  }
  grid->setColumnStretch(1, 1);
  return area;
}

std::vector<QCheckBox*> FormDruckInfo::kaestchen(const char* name, std::span<const char* const> captions,
                                                 const std::vector<std::reference_wrapper<Flagge>>& flaggen) {
  std::vector<QCheckBox*> boxes;
  for (std::size_t i = 0; i < captions.size(); ++i) {
    auto* box = new QCheckBox(QString::fromLatin1(captions[i]), this);
    box->setObjectName(indexed(name, i));
    box->setChecked(static_cast<bool>(flaggen.at(i).get()));
    connect(box, &QCheckBox::toggled, this, &FormDruckInfo::geaendert);
    boxes.push_back(box);
  }
  return boxes;
}

QWidget* FormDruckInfo::wahl(const DruckInfoArt& art) {
  diagramme_ = kaestchen("CheckDiagramm", art.diagramme, felder_.diagramme);
  tabellen_ = kaestchen("CheckTabelle", art.tabellen, felder_.tabellen);
  auto* area = new QFrame(this);
  area->setFrameShape(QFrame::NoFrame);
  auto* row = new QHBoxLayout(area);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(scaled(12));
  QLabel* heading = label("lblPrint", words(TextPrint));
  heading->setFont(themeFont(1, true));
  row->addWidget(heading);
  const auto group = [&](const char* name, std::int16_t text, const std::vector<QCheckBox*>& boxes) {
    row->addSpacing(scaled(16));
    row->addWidget(label(name, words(text)));
    for (QCheckBox* box : boxes) {
      box->setAccessibleName(words(text) + QLatin1Char(' ') + box->text());
      row->addWidget(box);
    }
  };
  group("lblDiagramm", TextDiagramm, diagramme_);
  group("lblTabelle", TextTabelle, tabellen_);
  row->addStretch(1);
  return area;
}

QWidget* FormDruckInfo::befehle(bool printerThere) {
  auto* area = new QWidget(this);
  auto* row = new QHBoxLayout(area);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(scaled(8));
  row->addWidget(befehl("CommandVorschau", TextVorschau, onVorschau, Danach::bleiben));
  row->addWidget(befehl("CommandPdf", TextPdf, onPdf, Danach::schliessenWennGetan));
  row->addStretch(1);
  QPushButton* print = befehl("CommandDruckAbbrechen(0)", TextDrucken, onDrucken, Danach::schliessen);
  print->setEnabled(printerThere);
  print->setDefault(printerThere);
  row->addWidget(print);
  auto* cancel = new QPushButton(words(TextAbbrechen), this);
  cancel->setObjectName(QStringLiteral("CommandDruckAbbrechen(1)"));
  cancel->setAutoDefault(false);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  row->addWidget(cancel);
  return area;
}

QPushButton* FormDruckInfo::befehl(const char* name, std::int16_t text, const std::function<bool()>& entry,
                                   Danach danach) {
  auto* button = new QPushButton(words(text), this);
  button->setObjectName(QString::fromLatin1(name));
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, &entry, danach] {
    uebernehmen();
    bool done = false;
    {
      const HourglassScope hourglass;
      if (entry) done = entry();
    }
    if (danach == Danach::schliessen || (danach == Danach::schliessenWennGetan && done)) accept();
  });
  return button;
}

// ---- What the user does ----

void FormDruckInfo::geaendert() {
  geaendert_ = true;
  if (hinweis_ != nullptr) hinweisZeigen();
}

void FormDruckInfo::hinweisZeigen() {
  bool chosen = false;
  for (const auto* boxes : {&diagramme_, &tabellen_}) {
    for (const QCheckBox* box : *boxes) chosen = chosen || box->isChecked();
  }
  QStringList hints;
  if (!findChild<QPushButton*>(QStringLiteral("CommandDruckAbbrechen(0)"))->isEnabled())
    hints << words(TextKeinDrucker);
  if (!chosen) hints << words(TextNichtsGewaehlt);
  hinweis_->setText(hints.join(QLatin1Char('\n')));
}

void FormDruckInfo::uebernehmen() {
  const std::array<FesterText<Feldlaenge>*, 3> targets = {&felder_.Bezeichnung, &felder_.Bediener,
                                                          &felder_.Kommentar};
  for (std::size_t i = 0; i < targets.size(); ++i) {
    const auto bytes = zuCp1252(texte_.at(i)->value());
    if (bytes && texte_.at(i)->isModified()) *targets.at(i) = *bytes;
  }
  for (std::size_t i = 0; i < diagramme_.size(); ++i)
    felder_.diagramme.at(i).get() = diagramme_.at(i)->isChecked();
  for (std::size_t i = 0; i < tabellen_.size(); ++i)
    felder_.tabellen.at(i).get() = tabellen_.at(i)->isChecked();
  if (geaendert_) felder_.Geaendert = true;
}

}  // namespace korvin
