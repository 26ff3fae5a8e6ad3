// The command families of the core. Each fills the dispatcher with its
// handlers; the window layer adds its own families beside them.
#pragma once

namespace tamrix {

class Dispatcher;
class Interpreter;

void RegisterTextOutputCommands(Dispatcher& dispatcher);
void RegisterWaitCommands(Dispatcher& dispatcher);
void RegisterButtonCommands(Dispatcher& dispatcher);
void RegisterStringCommands(Dispatcher& dispatcher);
void RegisterNumericCommands(Dispatcher& dispatcher);
void RegisterDateCommands(Dispatcher& dispatcher);
void RegisterWindowCommand(Dispatcher& dispatcher);
void RegisterNewWindowCommand(Dispatcher& dispatcher);
void RegisterGetTextCommand(Dispatcher& dispatcher);
void RegisterEventCommands(Dispatcher& dispatcher);
void RegisterDrawingCommands(Dispatcher& dispatcher);
void RegisterPictureCommands(Dispatcher& dispatcher);
void RegisterImageCommands(Dispatcher& dispatcher);
void RegisterAnimatedGifCommands(Dispatcher& dispatcher);
void RegisterGradientCommand(Dispatcher& dispatcher);

// Text, Mask, Currency, Calendar, Check, Radio, Label, Link, Frame, ScrollBar.
void RegisterEntryCommands(Dispatcher& dispatcher);

// All families above, in one call.
void RegisterCoreCommandFamilies(Dispatcher& dispatcher);

// The data families (files, the text store, record files), which also take
// the DB block statement and close their files with the main window.
void RegisterDataCommands(Interpreter& interpreter);

// All families of the core, those above and the data families.
void RegisterCoreCommandFamilies(Interpreter& interpreter);

}  // namespace tamrix
