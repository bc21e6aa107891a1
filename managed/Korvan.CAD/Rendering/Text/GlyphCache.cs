using System;
using System.Threading;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Text;

/// <summary>
/// The cache of glyphs that all fonts of cairo share. A thread that uses a font holds its lock while it waits for the
/// cache, and one that removes the glyphs of a font from the full cache holds the cache while it waits for the font.
/// Threads use fonts side by side as long as the cache cannot be full, and one at a time from then on.
/// </summary>
internal static class GlyphCache
{
    /// <summary>The parts of a page that a glyph of the Latin alphabet takes.</summary>
    internal const int Glyph = 1;

    /// <summary>The parts of a page: glyphs of a font that other fonts do not use.</summary>
    internal const int Page = 32;

    // The cache of cairo has 512 pages; others in the process may take some.
    private const int MaxPages = 400;

    private const int Nested = 0;
    private const int Shared = 1;
    private const int Exclusive = 2;

    private static readonly ReaderWriterLockSlim Gate = new();
    private static long _parts;

    [ThreadStatic]
    private static int _depth;

    /// <summary>Gets whether the cache may be full, so that nobody counts any more.</summary>
    internal static bool IsFull => Interlocked.Read(ref _parts) > MaxPages * Page;

    /// <summary>Begins to use fonts.</summary>
    /// <param name="parts">What the cache may take more than before, in parts of pages.</param>
    internal static Scope Use(long parts)
    {
        if (parts > 0)
        {
            Interlocked.Add(ref _parts, parts);
        }

        if (_depth++ > 0)
        {
            return new Scope(Nested);
        }

        if (IsFull)
        {
            Gate.EnterWriteLock();
            return new Scope(Exclusive);
        }

        Gate.EnterReadLock();
        if (!IsFull)
        {
            return new Scope(Shared);
        }

        // It was filled in the meantime.
        Gate.ExitReadLock();
        Gate.EnterWriteLock();
        return new Scope(Exclusive);
    }

    /// <summary>Releases an object that may be, or hold, a font.</summary>
    internal static void Unref(nint instance)
    {
        using Scope scope = Use(0);
        Pango.Unref(instance);
    }

    /// <summary>Ends a drawing context that has used fonts.</summary>
    internal static void Destroy(nint context)
    {
        using Scope scope = Use(0);
        Cairo.Destroy(context);
    }

    /// <summary>The time in which a thread uses fonts.</summary>
    internal readonly ref struct Scope
    {
        private readonly int _access;

        internal Scope(int access) => _access = access;

        /// <summary>Ends the use.</summary>
        public void Dispose()
        {
            _depth--;
            if (_access == Exclusive)
            {
                Gate.ExitWriteLock();
            }
            else if (_access == Shared)
            {
                Gate.ExitReadLock();
            }
        }
    }
}
