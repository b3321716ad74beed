#pragma once

/// Counts what this thread asks of the heap: the program's own malloc and its relatives pass every
/// request on to the C library. Linked into each benchmark.
namespace HeapCounter
{

/// How often this thread asked for memory, also to grow a block.
long Allocations();

/// The memory that this thread took, less what it gave back, in bytes as the heap rounds them.
/// Negative if it gave back what another thread took.
long Bytes();

/// The most that Bytes has been since ResetPeak.
long PeakBytes();
void ResetPeak();

}
