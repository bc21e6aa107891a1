using System;
using System.Runtime.InteropServices;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>
/// How much a path covers of each pixel of a box. What a clip of many edges limits is drawn without it and then mixed
/// with what was there before: general rasterizers intersect each stroke with the edges of the clip anew.
/// </summary>
internal sealed unsafe class ClipMask
{
    /// <summary>The parts of a path from which on a mask is made of it.</summary>
    internal const int MinVerbs = 64;

    /// <summary>The pixels that are mixed in about the time of one step of the budget.</summary>
    internal const int PixelsPerStep = 3_000;

    /// <summary>The coverage of a pixel that is covered whole.</summary>
    private const int Opaque = 255;
    private const uint Channels = 0x00ff_00ff;

    private readonly byte[] _coverage;
    private readonly PathVerb[] _verbs;
    private readonly double[] _coords;
    private readonly bool _evenOdd;

    private ClipMask(PixelBox box, ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> coords, bool evenOdd)
    {
        Box = box;
        _verbs = verbs.ToArray();
        _coords = coords.ToArray();
        _evenOdd = evenOdd;
        Budget.VerifyRoom(box.Area);
        _coverage = new byte[box.Area];
    }

    /// <summary>Gets the pixels that the mask is for.</summary>
    internal PixelBox Box { get; }

    /// <summary>Makes the mask of a path.</summary>
    /// <param name="box">The pixels.</param>
    /// <param name="verbs">The verbs of the path.</param>
    /// <param name="coords">Its coordinates.</param>
    /// <param name="map">The map to pixels of the page.</param>
    /// <param name="evenOdd">Whether the even-odd rule holds, not the one of the winding number.</param>
    /// <param name="tolerance">How far chords may lie from curves, in pixels.</param>
    /// <param name="subRows">The rows of samples in a row of pixels.</param>
    /// <param name="isSharp">Whether a pixel is either covered or not.</param>
    internal static ClipMask Of(
        PixelBox box, ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> coords, in Affine2 map, bool evenOdd,
        double tolerance, int subRows, bool isSharp)
    {
        var mask = new ClipMask(box, verbs, coords, evenOdd);
        var rows = new RowRange(box.Top, box.Bottom);
        var bounds = Bounds2.Of(box.Left, box.Top, box.Right, box.Bottom);
        var white = new Rgba(Opaque, Opaque, Opaque, Opaque);
        using var block = new Raster.Pixels.PixelBlock(box.Area);
        byte* origin = (byte*)(block.Data - box.Left);
        var painter = new ThinLinePainter(
            new PixelRows((nint)origin, box.Right, int.MaxValue, box.Width * sizeof(int)), rows);
        new DenseFiller(painter, rows).Fill(verbs, coords, map, bounds, evenOdd, white, tolerance, subRows);
        for (int i = 0; i < mask._coverage.Length; i++)
        {
            int covered = (int)((uint)block.Data[i] >> 24);
            mask._coverage[i] = (byte)(!isSharp ? covered : covered > Opaque / 2 ? Opaque : 0);
        }

        return mask;
    }

    /// <summary>Returns whether the mask is that of a path.</summary>
    internal bool IsOf(PixelBox box, ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> coords, bool evenOdd) =>
        box == Box && evenOdd == _evenOdd && coords.SequenceEqual(_coords)
        && MemoryMarshal.AsBytes(verbs).SequenceEqual(MemoryMarshal.AsBytes(_verbs.AsSpan()));

    /// <summary>Puts back what was in a row of pixels before, as far as the mask does not cover it.</summary>
    /// <param name="row">The row, from the top of the box.</param>
    /// <param name="pixels">The pixels of the row, four bytes each with alpha multiplied in.</param>
    /// <param name="before">What they were before.</param>
    internal void Restore(int row, Span<int> pixels, ReadOnlySpan<int> before)
    {
        ReadOnlySpan<byte> coverage = _coverage.AsSpan(row * Box.Width, Box.Width);
        for (int x = 0; x < coverage.Length;)
        {
            byte covered = coverage[x];
            if (covered is not (0 or Opaque))
            {
                pixels[x] = Mixed((uint)before[x], (uint)pixels[x], covered);
                x++;
                continue;
            }

            int run = coverage[x..].IndexOfAnyExcept(covered);
            int end = run < 0 ? coverage.Length : x + run;
            if (covered == 0)
            {
                before[x..end].CopyTo(pixels[x..end]);
            }

            x = end;
        }
    }

    private static int Mixed(uint before, uint after, uint covered)
    {
        uint left = Opaque - covered;
        uint even = Rounded(((before & Channels) * left) + ((after & Channels) * covered));
        uint odd = Rounded((((before >> 8) & Channels) * left) + (((after >> 8) & Channels) * covered));
        return (int)(even | (odd << 8));
    }

    /// <summary>Divides both channels by 255, rounded.</summary>
    private static uint Rounded(uint pair)
    {
        uint half = pair + 0x0080_0080;
        return ((half + ((half >> 8) & Channels)) >> 8) & Channels;
    }
}

/// <summary>Pixels of a page; those at right and bottom are not among them.</summary>
internal readonly record struct PixelBox(int Left, int Top, int Right, int Bottom)
{
    internal int Width => Right - Left;

    internal int Height => Bottom - Top;

    internal long Area => (long)Width * Height;

    internal bool IsEmpty => Left >= Right || Top >= Bottom;

    /// <summary>The pixels that a box touches.</summary>
    internal static PixelBox Around(in Bounds2 box) => box.IsEmpty ? default : new PixelBox(
        (int)Math.Floor(box.MinX), (int)Math.Floor(box.MinY), (int)Math.Ceiling(box.MaxX),
        (int)Math.Ceiling(box.MaxY));
}
