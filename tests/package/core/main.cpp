#include <vantrel/model/Workflow.h>

int main() { return vantrel::Workflow().Places.IsEmpty() ? 0 : 1; }
