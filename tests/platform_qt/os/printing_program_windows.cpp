// A program with windows, not of a console, that prints. With an argument it only logs.
#include "platform_qt/os/console.h"

int main(int count, char**) {
  if (count == 1) return verlume::qt::PrintText("Γεια\nχαρά\n", true) ? 0 : 1;
  verlume::qt::LogLine("γραμμή");
  return 0;
}
