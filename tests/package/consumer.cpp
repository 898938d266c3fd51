#include "vorlane.h"

int main() { return gns::Communities().size() == 0 ? 0 : 1; }
