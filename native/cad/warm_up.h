// warm_up.h: the first conversion of a process, done while the program starts.
#ifndef KORVAN_CAD_WARM_UP_H
#define KORVAN_CAD_WARM_UP_H

// Begins it on a thread of the library. It ends with the interpreter at the latest.
void start_warm_up();

#endif
