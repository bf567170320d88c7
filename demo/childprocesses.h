#pragma once

/// True while a child process of this program runs or waits to be reaped. A child is reaped in the
/// turn of the event loop that enters the next step of a conversion, so a turn that ends without a
/// child is the end of the chain.
bool hasChildProcesses();
