#pragma once

/// Handles pending events other than user input, which stays queued for the event loop. Interface thread
/// only.
void handlePendingEvents();
