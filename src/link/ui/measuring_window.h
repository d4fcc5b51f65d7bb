#pragma once

#include <QEventLoop>
#include <QHash>
#include <QMainWindow>
#include <QProgressBar>
#include <QString>
#include <QVector>
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>

#include "frame/ui/key_tool_bar.h"
#include "link/messaufgabe.h"
#include "link/messfenster_ansicht.h"
#include "link/messzyklus.h"
#include "link/ui/head_panel.h"
#include "link/ui/led_label.h"
#include "link/ui/service_line.h"
#include "link/ui/service_panel.h"
#include "link/ui/value_panel.h"

namespace korvin {

/// A key of a measuring window's toolbar, one line of its table.
struct TastenZeile {
  const char* key;
  const char* picture;
  KeyToolBar::Kind kind;
  const char* shortcut;   ///< in Qt's portable form, or empty
  std::int16_t text;      ///< tooltip
  bool later = false;     ///< shown, but without its job yet: never enabled
  std::int16_t idle = 0;  ///< if not 0: without a job in this window, never enabled; the text says so
};

/// What the menu of the file does beside pressing keys.
struct DateiMenuBefehle {
  std::function<void()> neu{};             ///< in place of the key "NEU"
  std::function<void()> speichernUnter{};  ///< without it the entry has no job
};

// Numbers of texts in the line that says what the window is doing.
inline constexpr std::int16_t TextBereit = 7220;
inline constexpr std::int16_t TextLaufend = 7222;
inline constexpr std::int16_t TextSchnell = 7223;

/// The shell of every measuring window: toolbar, link indicator, head panel, service line and panel, closing
/// in two steps, and the measuring cycle behind them, which it shows as the cycle asks.
///
/// How to add a window: derive from it, lay out `mitte()` with the kind's own panels (register value panels
/// with `wertfelder`), give the table of keys, and implement what is left abstract. The window has to be
/// built in full before `ausfuehren`.
class Messfenster : public QMainWindow, public MessfensterAnsicht {
  Q_OBJECT
 public:
  ~Messfenster() override;

  /// Shows the window modally over its parent and returns when it has been closed.
  void ausfuehren();
  /// Shows and activates the window; `ausfuehren` without the waiting.
  void zeigen();
  /// True from `zeigen` until the second closing request.
  bool offen() const { return offen_; }

 protected:
  Messfenster(const ZyklusUmgebung& umgebung, MSComm& control, Messaufgabe& aufgabe, QWidget* parent);

  // ---- What a kind of window tells ----

  /// The first activation: takes the record, shows it, goes online.
  virtual void ersteAktivierung() = 0;
  /// The first closing request: true if the user lets the window go.
  virtual bool schliessenErlaubt() = 0;
  /// A toolbar key that the shell doesn't know was pressed; `gedrueckt` is its new state.
  virtual void taste(const QString& key, bool gedrueckt) = 0;
  /// One of the measuring keys was pressed; the cycle is told next.
  virtual void messtasteGedrueckt() {}
  /// The window is about to go.
  virtual void wirdEntladen() {}
  /// Number of the text that says what the window is doing.
  virtual std::int16_t betriebText();

  // ---- What the shell offers ----

  Messzyklus& zyklus() { return zyklus_; }
  const ZyklusBeschreibung& beschreibung() const { return aufgabe_.beschreibung(); }
  KeyToolBar& tasten() { return *toolBar_; }
  HeadPanel& kopf() { return *kopf_; }
  ServicePanel& service() { return *service_; }
  Dictionary& dictionary() { return u_.dictionary; }
  const ZyklusUmgebung& umgebung() const { return u_; }
  QString dicText(std::int16_t id) { return qDicText(id); }

  /// Makes the toolbar of this name from its table.
  KeyToolBar& tastenAnlegen(const QString& name, std::span<const TastenZeile> tabelle);
  /// Where a window lays out its own panels; the head panel is laid out by it too.
  QWidget* mitte() { return mitte_; }
  /// Lays out the middle: `bild` to the left with so many hundredths of the width, beside it `panels` over
  /// `liste`.
  void mitteAnordnen(QWidget& bild, int hundertstel, QWidget& panels, QWidget& liste);
  /// The panels that the cycle colours and empties.
  QVector<ValuePanel*> wertfelder;
  /// Room for the widest value with that many decimals in all of them; `Masssystem` 1 is mil.
  void werteAnpassen(int NKStellen);
  /// Menu entry with the name `name` that does `befehl`; `key` is the toolbar key of the same job, whose
  /// shortcut it shows.
  QAction* menuEintrag(QMenu* menu, const char* name, std::int16_t text, std::function<void()> befehl,
                       const char* key = nullptr);
  QMenu* menuAnlegen(const char* name, std::int16_t text);
  /// An entry without a job: visible, disabled, with a tooltip that says why.
  void ohneAufgabe(QAction* eintrag, std::int16_t grund);
  /// The menu of the file, in which each entry presses its toolbar key.
  void dateiMenu(const DateiMenuBefehle& befehle);
  /// The three ways to take a reading, captions for single, running and fast ones.
  QMenu* messMenu(std::int16_t einzel, std::int16_t laufend, std::int16_t schnell);
  /// The entry of `menu` that shows or hides the table of points by `zeigen`.
  void punktListenEintrag(QMenu* menu, std::function<void(bool an)> zeigen);
  /// The two entries of the link.
  void verbindungsMenu();
  /// Runs `befehl` once no tick is under way; never while the window is closing.
  void ausserhalbDesTakts(std::function<void()> befehl);
  /// Brings the line that says what the window is doing up to date.
  void betriebZeigen();

  // ---- MessfensterAnsicht ----

  void zeigeLed(Farbe farbe) override;
  void setInfoBild(const std::string& schluessel) override;
  void zeigeInfo(bool sichtbar) override;
  void zeigeServiceZeile(int index, const std::string& text) override;
  void zeigeTelegramm(const std::string& rumpf) override;
  void setWertFarbe(Farbe farbe) override;
  void zeigeLeereWerte(const std::string& text) override;
  void zeigeIntensitaet(const std::string& text, Farbe farbe) override;
  void zeigeNurSimulation(const std::string& text, Farbe farbe) override;
  void zeigeMontage(const std::string& bild) override;
  void zeigeKamera(const std::string& text) override;
  void zeigeVerbindung(const Verbindungsmarken& marken) override;
  void zeigeAdaptProgress(const std::optional<Fortschritt>& fortschritt) override;
  void zeigeTaste(const std::string& taste, bool gedrueckt) override;
  void setTasteFrei(const std::string& taste, bool frei) override;
  void drueckeTaste(const std::string& taste) override;
  void zeigeSanduhr(bool an) override;
  void entladen() override;

  void closeEvent(QCloseEvent* event) override;

 private:
  QString qDicText(std::int16_t id);
  void aufbauen();
  void serviceVerbinden();
  void onTaste(const QString& key);
  void messtaste(const QString& key, char zustand);
  void beschriften();

  ZyklusUmgebung u_;
  Messaufgabe& aufgabe_;
  Messzyklus zyklus_;
  KeyToolBar* toolBar_ = nullptr;
  QWidget* mitte_ = nullptr;
  HeadPanel* kopf_ = nullptr;
  LedLabel* led_ = nullptr;
  QLabel* betrieb_ = nullptr;
  QProgressBar* AdaptProgress_ = nullptr;
  ServiceLine* adaptZeile_ = nullptr;  ///< the second service line
  ServiceLine* serviceZeile_ = nullptr;
  ServicePanel* service_ = nullptr;
  QAction* M_KVNOnline_ = nullptr;
  QAction* M_KVNSimulation_ = nullptr;
  QHash<QString, QVector<QAction*>> eintraege_;  ///< menu entries by the toolbar key of the same job
  QHash<QString, QString> kuerzel_;              ///< shortcuts of the keys, as the user reads them
  QHash<QString, std::int16_t> ohneAufgabe_;     ///< keys without a job, and the text that says why
  QEventLoop schleife_;
  std::int16_t gezeigterBetrieb_ = 0;
  bool einzelLaeuft_ = false;
  bool offen_ = false;
  bool entladen_ = false;
};

}  // namespace korvin
