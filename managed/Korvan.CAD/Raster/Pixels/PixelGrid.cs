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

    private MappedMemory? _mapped;
    private PixelBlock? _copy;
    private bool _isBorrowed;
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

    private PixelGrid(PixelGrid original)
    {
        original.Lifetime.Hold();
        Lifetime = new Lifetime(() =>
        {
            original.Lifetime.Release();
            _copy?.Dispose();
        });
        _mapped = original._mapped;
        _data = original._data;
        _isBorrowed = true;
        (Width, Height) = (original.Width, original.Height);
    }

    /// <summary>Gets what keeps the pixels for work that outlives their owner.</summary>
    internal Lifetime Lifetime { get; }

    internal int Width { get; private set; }

    internal int Height { get; private set; }

    internal long Count => (long)Width * Height;

    /// <summary>Gets the first byte, for reading.</summary>
    internal byte* Pointer
    {
        get
        {
            ObjectDisposedException.ThrowIf(_data == null, this);
            return (byte*)_data;
        }
    }

    /// <summary>Gets the first byte of pixels that were not borrowed.</summary>
    internal byte* WritablePointer
    {
        get
        {
            Own();
            return Pointer;
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
    internal ReadOnlySpan<int> Row(int y) => RowAt(y);

    /// <summary>Returns a row that may be changed.</summary>
    internal Span<int> WritableRow(int y)
    {
        Own();
        return RowAt(y);
    }

    private Span<int> RowAt(int y)
    {
        Budget.Check();
        if (_mapped != null)
        {
            MappedMemory.Touch(Width * (long)sizeof(int));
        }

        ObjectDisposedException.ThrowIf(_data == null, this);
        ArgumentOutOfRangeException.ThrowIfGreaterThanOrEqual((uint)y, (uint)Height, nameof(y));
        return new Span<int>(_data + ((long)y * Width), Width);
    }

    internal ReadOnlySpan<byte> Bytes(int y) => MemoryMarshal.AsBytes(Row(y));

    internal void Fill(int argb)
    {
        for (int y = 0; y < Height; y++)
        {
            WritableRow(y).Fill(argb);
        }
    }

    internal PixelGrid Copy(Rectangle area)
    {
        var copy = new PixelGrid(area.Width, area.Height);
        for (int y = 0; y < area.Height; y++)
        {
            Row(area.Y + y).Slice(area.X, area.Width).CopyTo(copy.WritableRow(y));
        }

        return copy;
    }

    internal PixelGrid Copy() => Copy(new Rectangle(0, 0, Width, Height));

    /// <summary>Returns the pixels for a use in which few need to change: they are copied at the first
    /// change.</summary>
    internal PixelGrid CopyOnWrite() => new(this);

    /// <summary>Crops without a new allocation.</summary>
    internal void CropInPlace(Rectangle area)
    {
        if (_isBorrowed)
        {
            Own(area);
            return;
        }

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
            if (!AreOpaque(Row(y)))
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
            if (AreOpaque(Row(y)))
            {
                continue;
            }

            foreach (ref int pixel in WritableRow(y))
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

    private void Own()
    {
        if (_isBorrowed)
        {
            Own(new Rectangle(0, 0, Width, Height));
        }
    }

    private void Own(Rectangle area)
    {
        _copy = new PixelBlock((long)area.Width * area.Height);
        for (int y = 0; y < area.Height; y++)
        {
            var target = new Span<int>(_copy.Data + ((long)y * area.Width), area.Width);
            Row(area.Y + y).Slice(area.X, area.Width).CopyTo(target);
            if (_copy.Mapped != null)
            {
                MappedMemory.Touch(area.Width * (long)sizeof(int));
            }
        }

        _mapped = _copy.Mapped;
        _data = _copy.Data;
        _isBorrowed = false;
        (Width, Height) = (area.Width, area.Height);
    }

    /// <summary>Determines whether all pixels have the highest alpha.</summary>
    internal static bool AreOpaque(ReadOnlySpan<int> pixels)
    {
        int all = -1;
        int i = 0;
        if (pixels.Length >= Vector<int>.Count)
        {
            var sum = new Vector<int>(-1);
            for (; i <= pixels.Length - Vector<int>.Count; i += Vector<int>.Count)
            {
                sum &= new Vector<int>(pixels[i..]);
            }

            for (int k = 0; k < Vector<int>.Count; k++)
            {
                all &= sum[k];
            }
        }

        for (; i < pixels.Length; i++)
        {
            all &= pixels[i];
        }

        return (all & Opaque) == Opaque;
    }
}
