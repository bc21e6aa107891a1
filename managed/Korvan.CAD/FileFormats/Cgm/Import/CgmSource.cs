using System;
using System.IO;
using System.IO.Compression;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <summary>Tells metafiles and their encodings by their first bytes, and unpacks those that gzip packed.</summary>
internal static class CgmSource
{
    private const int LargestPacked = 1 << 29;
    private const int BeginMetafileWord = ((int)ClassCode.DelimiterElement << 12) | ((int)DelimiterElement.BeginMetafile << 5);
    private const int LengthBits = 0x1F;
    private const int LongForm = 31;

    /// <summary>Tells whether a file begins like a binary metafile: with BEGMF, whose parameter is a text as long as it
    /// says, and as far as can be seen a descriptor of the metafile behind it.</summary>
    internal static bool IsBinary(ReadOnlySpan<byte> head)
    {
        if (head.Length < 4 || ((head[0] << 8) | (head[1] & ~LengthBits)) != BeginMetafileWord)
        {
            return false;
        }

        int length = head[1] & LengthBits;
        int start = 2;
        if (length == LongForm)
        {
            length = ((head[2] << 8) | head[3]) & 0x7FFF;
            start = 4;
        }

        // Most files name themselves by a text; some leave the name out altogether.
        bool hasName = length > 0 && start < head.Length && (head[start] == length - 1 || head[start] == byte.MaxValue);
        int next = start + length + (length & 1);
        bool isCut = next + 2 > head.Length;
        return (hasName || length == 0) && (isCut ? hasName : IsDescriptor((head[next] << 8) | head[next + 1]));
    }

    /// <summary>Tells whether a file begins like a clear text metafile: with the word BEGMF, perhaps behind comments.</summary>
    internal static bool IsClearText(ReadOnlySpan<byte> head) => StartsWithWord(head, "BEGMF"u8);

    internal static bool IsPacked(ReadOnlySpan<byte> head) => head.StartsWith((ReadOnlySpan<byte>)[0x1F, 0x8B, 8]);

    /// <summary>Gives what gzip packed; other data as they are.</summary>
    internal static byte[] Unpack(byte[] data, string name)
    {
        if (!IsPacked(data))
        {
            return data;
        }

        try
        {
            using var packed = new GZipStream(new MemoryStream(data, false), CompressionMode.Decompress);
            using var content = new MemoryStream();
            byte[] block = new byte[1 << 16];
            for (int count = packed.Read(block); count > 0; count = packed.Read(block))
            {
                content.Write(block, 0, count);
                if (content.Length > LargestPacked)
                {
                    throw new ImageLoadException($"'{name}' unpacks to more than {LargestPacked} bytes, which is the most that is read.");
                }
            }

            return content.ToArray();
        }
        catch (InvalidDataException e)
        {
            throw new ImageLoadException($"'{name}' is packed by gzip and damaged: {e.Message}");
        }
    }

    internal static CgmFileFormat FindEncoding(ReadOnlySpan<byte> data, string name)
    {
        if (StartsWithWord(data, "BEGMF"u8))
        {
            return CgmFileFormat.ClearText;
        }

        if (data.Length >= 2 && ((data[0] << 8) | (data[1] & ~LengthBits)) == BeginMetafileWord)
        {
            return CgmFileFormat.Binary;
        }

        throw new ImageLoadException(IsCharacterEncoding(data)
            ? $"'{name}' is a metafile of the character encoding (ISO/IEC 8632-2); the binary and the clear text encoding can be read."
            : $"'{name}' is no metafile: it begins neither with the element BEGMF of the binary encoding nor with the word BEGMF.");
    }

    // BEGMF is the opcode 3/0 2/0 there, perhaps behind sequences that choose the coding.
    private static bool IsCharacterEncoding(ReadOnlySpan<byte> data)
    {
        const byte escape = 0x1B;
        while (data.Length > 2 && data[0] == escape)
        {
            int end = data[1..].IndexOfAnyExceptInRange((byte)0x20, (byte)0x2F);
            data = end < 0 ? [] : data[(end + 2)..];
        }

        return data.StartsWith("0 "u8);
    }

    private static bool IsDescriptor(int word) =>
        word >> 12 == (int)ClassCode.MetaFileDescriptorElement && ((word >> 5) & 0x7F) is >= 1 and <= (int)MetaFileDescriptorElement.PictureDirectory;

    private static bool StartsWithWord(ReadOnlySpan<byte> data, ReadOnlySpan<byte> word)
    {
        while (data.Length > 0)
        {
            data = data.TrimStart(" \t\r\n\v\f_$"u8);
            if (data.IsEmpty || data[0] != '%')
            {
                break;
            }

            int end = data[1..].IndexOf((byte)'%');
            data = end < 0 ? [] : data[(end + 2)..];
        }

        int at = 0;
        for (int i = 0; i < data.Length && at < word.Length; i++)
        {
            bool isNull = data[i] is (byte)'_' or (byte)'$';
            if (!isNull && (data[i] & ~0x20) != word[at])
            {
                return false;
            }

            at += isNull ? 0 : 1;
        }

        return at == word.Length;
    }
}
