#include "support/ui_main.h"

int main(int argc, char** argv) {
  return korvin::test::runWindowTests(argc, argv);
}
