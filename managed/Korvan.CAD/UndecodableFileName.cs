using System;
using System.IO;
using System.Runtime.InteropServices;
using System.Text;
using Korvan.CAD.CadExceptions;
using Microsoft.Win32.SafeHandles;

namespace Korvan.CAD;

/// <summary>
/// File names that are not UTF-8, which .NET cannot open. Python passes them with an unpaired surrogate, U+DC80 to
/// U+DCFF, for each undecodable byte.
/// </summary>
internal static unsafe partial class UndecodableFileName
{
    private const int ReadOnly = 0;
    private const int CloseOnExec = 0x80000;

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
            using SafeFileHandle file = OpenByBytes(path);
            return true;
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

    /// <summary>Opens a file of any name.</summary>
    internal static FileStream OpenToRead(string path)
    {
        return Is(path)
            ? new FileStream(OpenByBytes(path), FileAccess.Read, 1)
            : new FileStream(path, FileMode.Open, FileAccess.Read, FileShare.ReadWrite, 1);
    }

    private static SafeFileHandle OpenByBytes(string path)
    {
        if (path.Contains('\0', StringComparison.Ordinal))
        {
            throw new IOException("a NUL is part of no file's name");
        }

        fixed (byte* name = Bytes(path))
        {
            int file = Open(name, ReadOnly | CloseOnExec, 0);
            return file >= 0
                ? new SafeFileHandle(file, true)
                : throw new IOException(Marshal.GetLastPInvokeErrorMessage());
        }
    }

    // With a terminating NUL.
    private static byte[] Bytes(string path)
    {
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

    [LibraryImport("libc", EntryPoint = "open", SetLastError = true)]
    private static partial int Open(byte* path, int flags, uint mode);
}
