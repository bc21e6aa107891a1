using System;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>The palette of a PSD.</summary>
internal sealed class PsdPalette : ColorPalette, IPsdColorPalette
{
    internal const int Bytes = 768;

    internal PsdPalette(int[] colors, int transparentIndex)
        : base(colors)
    {
        TransparentIndex = transparentIndex;
    }

    public int TransparentIndex { get; }

    public bool HasTransparentColor => TransparentIndex >= 0;

    public byte[] GetRawEntries()
    {
        var table = new byte[Bytes];
        for (int i = 0; i < Math.Min(EntriesCount, 256); i++)
        {
            int color = GetArgb32Color(i);
            (table[i], table[256 + i], table[512 + i]) = ((byte)(color >> 16), (byte)(color >> 8), (byte)color);
        }

        return table;
    }

    internal static PsdPalette Read(ReadOnlySpan<byte> table, int transparentIndex)
    {
        var colors = new int[256];
        for (int i = 0; i < 256; i++)
        {
            int rgb = (table[i] << 16) | (table[256 + i] << 8) | table[512 + i];
            colors[i] = i == transparentIndex ? rgb : rgb | PixelGrid.Opaque;
        }

        return new PsdPalette(colors, transparentIndex);
    }
}
