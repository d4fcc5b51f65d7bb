#include "link/ui/kopfsuche.h"

#include <QPointer>
#include <QScopedValueRollback>
#include <QWidget>

#include "frame/ui/mouse_pointer.h"
#include "link/kor_com.h"
#include "link/ui/form_scan_comport.h"

namespace korvin {
namespace {

constexpr double pauseBefore = 0.3;
constexpr std::int16_t textTitle = 600;
constexpr std::int16_t textNoHead = 603;
constexpr std::int16_t textFound = 7120;
constexpr std::int16_t textNone = 7121;

/// Keeps a window from taking clicks while it lives: a measurement started now would want the port that is
/// searched. A disabled window loses its focus, so that is given back.
class InputLock {
 public:
  explicit InputLock(QWidget& window) : window_(window), focus_(window.focusWidget()) {
    window_.setEnabled(false);
  }
  ~InputLock() {
    window_.setEnabled(true);
    if (focus_ != nullptr) focus_->setFocus();
  }
  InputLock(const InputLock&) = delete;
  InputLock& operator=(const InputLock&) = delete;

 private:
  QWidget& window_;
  QPointer<QWidget> focus_;
};

}  // namespace

bool Kopfsuche::suchen(QWidget& window) {
  const QScopedValueRollback<bool> whileRunning(laeuft_, true);
  meldung_.MsgTitel = dictionary_.DicText(textTitle);
  showHourglass();
  FormScanComport dialog(dictionary_, &window);
  const InputLock lock(window);
  dialog.setEnabled(true);
  dialog.show();
  pause(umgebung_.clock, umgebung_.pump, pauseBefore);
  const bool gefunden = ScanRS(umgebung_, dialog);
  ausgang_ = gefunden ? Ausgang::gefunden : Ausgang::keiner;
  const bool weiter = gefunden || ohneKopfWeiter();
  showNormalPointer();
  return weiter;
}

bool Kopfsuche::ohneKopfWeiter() {
  meldung_.MsgText = dictionary_.DicText(textNoHead);
  return messages_.show(meldung_, MessageIcon::question, MessageButtons::okCancel) == MessageAnswer::ok;
}

std::string Kopfsuche::zeile() {
  if (ausgang_ == Ausgang::offen) return {};
  if (ausgang_ == Ausgang::keiner) return dictionary_.DicText(textNone);
  const std::string& settings = umgebung_.antwort.Settings;
  return dictionary_.DicText(textFound) + ": Com " + std::to_string(umgebung_.antwort.Port) + ", " +
         settings.substr(0, settings.find(','));
}

}  // namespace korvin
