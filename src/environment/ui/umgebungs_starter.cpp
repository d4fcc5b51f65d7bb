#include "environment/ui/umgebungs_starter.h"

#include "environment/ui/form_umgebungs_analyse.h"

namespace korvin {

void UmgebungsStarter::zeigen(QWidget* ueber) {
  const std::unique_ptr<MSComm> MSCommKamera = start_.neuesMSComm();
  FormUmgebungsAnalyse({start_.zyklus, *MSCommKamera, formpos_, erfassung_, start_.dienste}, ueber)
      .ausfuehren();
}

}  // namespace korvin
