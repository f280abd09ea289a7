// The last way out: a process that ends from within, past the program's own end, must not leave a hot wire
// nor a queue that runs on. A display that is gone makes the window system end the process at once; a crash
// ends it more suddenly still.
#pragma once

namespace tessarel {

// From here on an end of the process by exit() puts the wire out, S and heat off in a few tries, where it may
// be hot. Called by the exchange when something is lit or started first: what it needs is older then, and
// outlives it.
void VeillerALaSortie();

// The same at once, for the handler of a crash too: no box, no event, no memory taken before the tries are
// over. Says on standard error that the wire may be hot where the box did not confirm.
void EteindreEnSortant() noexcept;

} // namespace tessarel
