#pragma once

/// Handles the events that are pending, but no input: that stays for the event loop. Interface thread only.
void handlePendingEvents();
