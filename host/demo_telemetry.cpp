#include "demo_session.h"

void ZrkDemoSession::runTelemetrySteps() { }
