using System.Collections;
using System.Collections.Generic;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;
using System.Runtime.Intrinsics.X86;

namespace Korvan.WrpGen.Generic;

/// <summary>Walks a <see cref="List{T}"/> of objects for Python.</summary>
/// <remarks>
/// Python spends some hundred nanoseconds on an item, which is as long as memory takes to deliver an object that no
/// cache holds. So the objects of the next steps are asked for ahead: a walk over a large drawing then takes half the
/// time. It wraps the list's own enumerator, which throws when the list was modified.
/// </remarks>
public sealed unsafe class ListCursor<T>(List<T> list) : IEnumerator<T>
{
    private const int Ahead = 6;
    private const int CacheLine = 64;

    // An object and what was made with it, such as the points of a line, which lie behind it.
    private const int Fetched = 6 * CacheLine;

    private List<T>.Enumerator _items = list.GetEnumerator();
    private int _next;

    public T Current => _items.Current;

    object? IEnumerator.Current => Current;

    public bool MoveNext()
    {
        int ahead = _next++ + Ahead;
        if (Sse.IsSupported && ahead < list.Count)
        {
            // The address may be out of date when it is used: fetching from anywhere does no harm.
            nint address = Unsafe.As<T, nint>(ref CollectionsMarshal.AsSpan(list)[ahead]);
            for (nint line = address; line < address + Fetched; line += CacheLine)
            {
                Sse.Prefetch0((void*)line);
            }
        }
        return _items.MoveNext();
    }

    public void Reset() => throw new System.NotSupportedException();

    public void Dispose() => _items.Dispose();
}
