#include <vantrel/util/Variant.h>
#include <vantrel/version.h>

int main() { return vantrel::Variant(VANTREL_VERSION).ToText() == VANTREL_VERSION ? 0 : 1; }
