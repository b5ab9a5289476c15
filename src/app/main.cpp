#include "app/CommandLine.h"

int main(int plngCount, char** pstrArguments) { return vantrel::RunCommandLine(plngCount, pstrArguments); }
