#pragma once

/** The default heap allocator of engine containers; the headless editor's containers own their storage. */
class FDefaultAllocator
{
};

template <int NumInlineElements>
class TInlineAllocator
{
};
