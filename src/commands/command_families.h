// The command families of the core. Each fills the dispatcher with its
// handlers; the window layer adds its own families beside them.
#pragma once

namespace tamrix {

class Dispatcher;

void RegisterTextOutputCommands(Dispatcher& dispatcher);
void RegisterWaitCommands(Dispatcher& dispatcher);

// All families above, in one call.
void RegisterCoreCommandFamilies(Dispatcher& dispatcher);

}  // namespace tamrix
