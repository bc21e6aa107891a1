using System;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Counts the frames of a GIF (GIF89a, Appendix B) without decoding them.</summary>
internal static class GifFrameCount
{
    private const int HeaderLength = 13;
    private const int DescriptorLength = 10;
    private const byte Separator = 0x2C;
    private const byte Extension = 0x21;

    /// <summary>Returns the number of frames up to a limit, or to where the file is damaged.</summary>
    internal static int Of(ReadOnlySpan<byte> data, int limit)
    {
        int count = 0;
        int at = data.Length < HeaderLength ? data.Length : HeaderLength + ColorTableLength(data[10]);
        while (at < data.Length && count < limit)
        {
            if (data[at] == Separator && at + DescriptorLength < data.Length)
            {
                count++;
                at = AfterBlocks(data, at + DescriptorLength + ColorTableLength(data[at + 9]) + 1);
            }
            else if (data[at] == Extension)
            {
                at = AfterBlocks(data, at + 2);
            }
            else
            {
                break;
            }
        }

        return count;
    }

    private static int ColorTableLength(byte flags) => (flags & 0x80) != 0 ? 3 << ((flags & 7) + 1) : 0;

    private static int AfterBlocks(ReadOnlySpan<byte> data, int at)
    {
        while (at < data.Length && data[at] != 0)
        {
            at += data[at] + 1;
        }

        return at + 1;
    }
}
