#include <cstdlib>

#include "korvin/application.h"
#include "korvin/station.h"

int main(int argc, char** argv) {
  if (!korvin::preparePlatform()) return EXIT_FAILURE;
  korvin::Application application(argc, argv);
  korvin::Station station(korvin::folderEnvironment(), korvin::desktopAppearance());
  application.onUncaught = [&station](const std::string& words) {
    station.messages().show({"KORVIN", words}, korvin::MessageIcon::warning, korvin::MessageButtons::ok);
  };
  return station.start() ? korvin::Application::exec() : EXIT_FAILURE;
}
