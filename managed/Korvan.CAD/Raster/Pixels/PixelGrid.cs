using System;
using System.Numerics;
using System.Runtime.InteropServices;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Rendering.Devices;

namespace Korvan.CAD.Raster.Pixels;

/// <summary>Pixels in rows from the top down, as 32-bit ARGB values without premultiplication. In memory each is blue,
/// green, red, alpha (BGRA).</summary>
internal sealed unsafe class PixelGrid : IDisposable
{
    internal const int MaxSide = 65_535;
    internal const long MaxPixels = RasterPage.MaxPixels;

    /// <summary>Up to so many pixels, an operation takes about a millisecond.</summary>
    internal const int MaxSmall = 256 * 256;
    internal const int Opaque = unchecked((int)0xFF000000);

    private readonly MappedMemory? _mapped;
    private int* _data;

    internal PixelGrid(int width, int height)
    {
        VerifySize(width, height);
        var block = new PixelBlock((long)width * height);
        Lifetime = new Lifetime(block.Dispose);
        _mapped = block.Mapped;
        _data = block.Data;
        (Width, Height) = (width, height);
    }

    /// <summary>Takes over pixels of another owner.</summary>
    internal PixelGrid(PixelBlock block, int width, int height, IDisposable owner)
    {
        Lifetime = new Lifetime(owner.Dispose);
        _mapped = block.Mapped;
        _data = block.Data;
        (Width, Height) = (width, height);
    }

    /// <summary>Gets what keeps the pixels for work that outlives their owner.</summary>
    internal Lifetime Lifetime { get; }

    internal int Width { get; private set; }

    internal int Height { get; private set; }

    internal long Count => (long)Width * Height;

    internal byte* Pointer
    {
        get
        {
            ObjectDisposedException.ThrowIf(_data == null, this);
            return (byte*)_data;
        }
    }

    /// <summary>Throws for an invalid size; called before anything is allocated for the size that a file
    /// claims.</summary>
    internal static void VerifySize(long width, long height)
    {
        if (width < 1 || height < 1)
        {
            throw new ArgumentOutOfRangeException(null, $"An image of {width} × {height} pixels has no area.");
        }

        if (width > MaxSide || height > MaxSide || width * height > MaxPixels)
        {
            throw new LimitMemoryException(
                $"An image of {width} × {height} pixels is too large: at most {MaxSide} pixels"
                + $" on a side and {MaxPixels} in all.");
        }
    }

    /// <summary>Returns a row. Every loop over pixels asks for its rows, so this is where they can be ended.</summary>
    internal Span<int> Row(int y)
    {
        Budget.Check();
        _mapped?.Touch(Width * (long)sizeof(int));
        ObjectDisposedException.ThrowIf(_data == null, this);
        ArgumentOutOfRangeException.ThrowIfGreaterThanOrEqual((uint)y, (uint)Height, nameof(y));
        return new Span<int>(_data + ((long)y * Width), Width);
    }

    internal Span<byte> Bytes(int y) => MemoryMarshal.AsBytes(Row(y));

    internal void Fill(int argb)
    {
        for (int y = 0; y < Height; y++)
        {
            Row(y).Fill(argb);
        }
    }

    internal PixelGrid Copy(Rectangle area)
    {
        var copy = new PixelGrid(area.Width, area.Height);
        for (int y = 0; y < area.Height; y++)
        {
            Row(area.Y + y).Slice(area.X, area.Width).CopyTo(copy.Row(y));
        }

        return copy;
    }

    internal PixelGrid Copy() => Copy(new Rectangle(0, 0, Width, Height));

    /// <summary>Crops without a new allocation.</summary>
    internal void CropInPlace(Rectangle area)
    {
        // Rows move towards the start only, so none is overwritten before it was moved.
        for (int y = 0; y < area.Height; y++)
        {
            Row(area.Y + y).Slice(area.X, area.Width).CopyTo(new Span<int>(_data + ((long)y * area.Width), area.Width));
        }

        (Width, Height) = (area.Width, area.Height);
    }

    internal bool IsOpaque()
    {
        for (int y = 0; y < Height; y++)
        {
            if (!AllHaveBits(Row(y), Opaque))
            {
                return false;
            }
        }

        return true;
    }

    internal static bool IsGray(int argb) => (byte)argb == (byte)(argb >> 8) && (byte)argb == (byte)(argb >> 16);

    internal bool IsGray()
    {
        for (int y = 0; y < Height; y++)
        {
            foreach (int pixel in Row(y))
            {
                if (!IsGray(pixel))
                {
                    return false;
                }
            }
        }

        return true;
    }

    /// <summary>Composites the pixels over a colour, so that all of them are opaque.</summary>
    internal void Flatten(int background)
    {
        for (int y = 0; y < Height; y++)
        {
            Span<int> row = Row(y);
            if (AllHaveBits(row, Opaque))
            {
                continue;
            }

            foreach (ref int pixel in row)
            {
                pixel = Over(pixel, background);
            }
        }
    }

    /// <summary>Returns a colour composited over an opaque one.</summary>
    internal static int Over(int argb, int background)
    {
        int alpha = (int)((uint)argb >> 24);
        if (alpha == 255)
        {
            return argb;
        }

        int Mix(int shift) =>
            ((((argb >> shift) & 255) * alpha) + (((background >> shift) & 255) * (255 - alpha)) + 127) / 255;
        return Opaque | (Mix(16) << 16) | (Mix(8) << 8) | Mix(0);
    }

    /// <summary>Returns the luma, 0 to 255, by the weights of ITU-R BT.601.</summary>
    internal static int Luma(int argb) =>
        ((((argb >> 16) & 255) * 19595) + (((argb >> 8) & 255) * 38470) + ((argb & 255) * 7471) + 32768) >> 16;

    public void Dispose()
    {
        _data = null;
        Lifetime.End();
    }

    private static bool AllHaveBits(ReadOnlySpan<int> row, int bits)
    {
        int all = -1;
        int i = 0;
        if (row.Length >= Vector<int>.Count)
        {
            var sum = new Vector<int>(-1);
            for (; i <= row.Length - Vector<int>.Count; i += Vector<int>.Count)
            {
                sum &= new Vector<int>(row[i..]);
            }

            for (int k = 0; k < Vector<int>.Count; k++)
            {
                all &= sum[k];
            }
        }

        for (; i < row.Length; i++)
        {
            all &= row[i];
        }

        return (all & bits) == bits;
    }
}
