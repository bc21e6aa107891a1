using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>The preview image: a directory of images and their data between two sentinels.</summary>
internal static class PreviewSection
{
    private const int SizeLength = 4;

    /// <summary>Returns the preview of a file with its sentinels; nothing if there is none at the address.</summary>
    internal static byte[] Cut(DwgSource source, uint address)
    {
        RawReader reader = new(source.Data);
        reader.Seek(address);
        if (address == 0 || !reader.Take(Sentinels.Length).SequenceEqual(Sentinels.Preview))
        {
            return [];
        }

        long length = Sentinels.Length + SizeLength + (long)reader.UInt32() + Sentinels.Length;
        return length > source.Data.Length - address ? [] : source.Data.AsSpan((int)address, (int)length).ToArray();
    }
}
