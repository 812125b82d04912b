#pragma once

struct xcb_connection_t;

namespace ondrilo {

/// From now on the server sends `connection` the repeats of a held key as presses alone. Without this it
/// sends a release with each, which no hand made.
void AskForBareRepeats(xcb_connection_t* connection);

} // namespace ondrilo
