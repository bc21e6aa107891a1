using System;
using System.IO;
using System.Text;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>
/// File names that are not UTF-8, which .NET cannot open. Python passes them with an unpaired surrogate, U+DC80 to
/// U+DCFF, for each undecodable byte.
/// </summary>
internal static class UndecodableFileName
{
    /// <summary>Returns whether a name has such bytes.</summary>
    internal static bool Is(string path)
    {
        for (int i = path.AsSpan().IndexOfAnyInRange('\uD800', '\uDFFF'); i >= 0 && i < path.Length; i++)
        {
            if (char.IsSurrogatePair(path, i))
            {
                i++;
            }
            else if (char.IsSurrogate(path[i]))
            {
                return true;
            }
        }

        return false;
    }

    /// <summary>Returns whether a file of any name can be opened.</summary>
    internal static bool Exists(string path)
    {
        if (!Is(path))
        {
            return File.Exists(path);
        }

        try
        {
            return PosixFile.KindOf(path) is not (PosixFile.Kind.Absent or PosixFile.Kind.Folder);
        }
        catch (IOException)
        {
            return false;
        }
    }

    /// <summary>Throws if a file of such a name would be written, as it would get another name.</summary>
    internal static void RefuseAsTarget(string path)
    {
        if (Is(path))
        {
            throw new ImageSaveException(
                $"'{path}' cannot be written by this name, which is no UTF-8; open the file in Python and pass that.");
        }
    }

    /// <summary>Opens a regular file of any name.</summary>
    internal static FileStream OpenToRead(string path) => new(PosixFile.OpenRegular(path), FileAccess.Read, 1);

    /// <summary>Returns the bytes of a name, with a terminating NUL.</summary>
    internal static byte[] Encode(string path)
    {
        if (path.Contains('\0', StringComparison.Ordinal))
        {
            throw new IOException("a NUL is part of no file's name");
        }

        using MemoryStream bytes = new();
        Span<byte> unit = stackalloc byte[4];
        for (int i = 0; i < path.Length; i++)
        {
            if (path[i] is >= '\uDC80' and <= '\uDCFF')
            {
                bytes.WriteByte((byte)path[i]);
                continue;
            }

            if (!Rune.TryGetRuneAt(path, i, out Rune rune))
            {
                throw new IOException("the name cannot be encoded");
            }

            bytes.Write(unit[..rune.EncodeToUtf8(unit)]);
            i += rune.Utf16SequenceLength - 1;
        }

        bytes.WriteByte(0);
        return bytes.ToArray();
    }
}
