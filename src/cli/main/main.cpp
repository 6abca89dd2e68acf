#include "cli/app.h"

int main(int argc, char** argv) { return brimwork::RunApp(argc, argv); }
