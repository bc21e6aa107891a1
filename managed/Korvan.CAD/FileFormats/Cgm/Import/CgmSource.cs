using System;
using System.IO;
using System.IO.Compression;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <summary>Detects metafiles and their encodings by their headers, and decompresses those of gzip.</summary>
internal static class CgmSource
{
    private const int MaxUnpackedLength = 1 << 29;
    private const int BeginMetafileWord =
        ((int)ClassCode.DelimiterElement << 12) | ((int)DelimiterElement.BeginMetafile << 5);
    private const int LengthBits = 0x1F;
    private const int LongForm = 31;

    /// <summary>Returns whether a header is that of a binary metafile: BEGMF, whose parameter is a string of the stated
    /// length, and, as far as the header goes, a metafile descriptor after it.</summary>
    internal static bool IsBinary(ReadOnlySpan<byte> header)
    {
        if (header.Length < 4 || ((header[0] << 8) | (header[1] & ~LengthBits)) != BeginMetafileWord)
        {
            return false;
        }

        int length = header[1] & LengthBits;
        int start = 2;
        if (length == LongForm)
        {
            length = ((header[2] << 8) | header[3]) & 0x7FFF;
            start = 4;
        }

        // Most files have an identifier; some leave it out altogether.
        bool hasName = length > 0 && start < header.Length
            && (header[start] == length - 1 || header[start] == byte.MaxValue);
        int next = start + length + (length & 1);
        bool isCut = next + 2 > header.Length;
        return (hasName || length == 0) && (isCut ? hasName : IsDescriptor((header[next] << 8) | header[next + 1]));
    }

    /// <summary>Returns whether a header is that of a clear text metafile: the keyword BEGMF, perhaps after
    /// comments.</summary>
    internal static bool IsClearText(ReadOnlySpan<byte> header) => StartsWithKeyword(header, "BEGMF"u8);

    internal static bool IsPacked(ReadOnlySpan<byte> header) => header.StartsWith((ReadOnlySpan<byte>)[0x1F, 0x8B, 8]);

    /// <summary>Decompresses data of gzip; returns other data as they are.</summary>
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
                Budget.VerifyRoom(2L * content.Length);
                content.Write(block, 0, count);
                if (content.Length > MaxUnpackedLength)
                {
                    throw new ImageLoadException(
                        $"'{name}' decompresses to more than {MaxUnpackedLength} bytes, which is the limit.");
                }
            }

            return content.ToArray();
        }
        catch (InvalidDataException e)
        {
            throw new ImageLoadException($"'{name}' is compressed by gzip and damaged: {e.Message}");
        }
    }

    internal static CgmFileFormat FindEncoding(ReadOnlySpan<byte> data, string name)
    {
        if (StartsWithKeyword(data, "BEGMF"u8))
        {
            return CgmFileFormat.ClearText;
        }

        if (data.Length >= 2 && ((data[0] << 8) | (data[1] & ~LengthBits)) == BeginMetafileWord)
        {
            return CgmFileFormat.Binary;
        }

        throw new ImageLoadException(IsCharacterEncoding(data)
            ? $"'{name}' is a metafile of the character encoding (ISO/IEC 8632-2); only the binary and the clear text "
                + "encoding can be read."
            : $"'{name}' is no metafile: it starts neither with the element BEGMF of the binary encoding nor with the "
                + "keyword BEGMF.");
    }

    // BEGMF is the opcode 3/0 2/0 there, perhaps after sequences that select the coding.
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
        word >> 12 == (int)ClassCode.MetaFileDescriptorElement
        && ((word >> 5) & 0x7F) is >= 1 and <= (int)MetaFileDescriptorElement.PictureDirectory;

    private static bool StartsWithKeyword(ReadOnlySpan<byte> data, ReadOnlySpan<byte> keyword)
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
        for (int i = 0; i < data.Length && at < keyword.Length; i++)
        {
            bool isNull = data[i] is (byte)'_' or (byte)'$';
            if (!isNull && (data[i] & ~0x20) != keyword[at])
            {
                return false;
            }

            at += isNull ? 0 : 1;
        }

        return at == keyword.Length;
    }
}
