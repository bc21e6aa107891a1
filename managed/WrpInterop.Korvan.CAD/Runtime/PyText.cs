using System;
using System.Runtime.CompilerServices;
using System.Text;

namespace Korvan.WrpGen.Interop;

/// <summary>Strings across the boundary: in from Python's own storage, out as finished objects.</summary>
public static unsafe class PyText
{
    private const int NullLength = -1;

    public static string? Read(PyStringArg* text)
    {
        int length = text->Length;
        if (length <= 0)
        {
            return length == 0 ? "" : length == NullLength ? null : throw new ArgumentException(
                "A Python string of 2,147,483,648 characters or more is too long.");
        }
        return text->CharSize switch
        {
            1 => Encoding.Latin1.GetString((byte*)text->Data, length),
            2 => new string((char*)text->Data, 0, length),
            4 => ReadCodePoints(new ReadOnlySpan<uint>(text->Data, length)),
            _ => throw new ArgumentException($"Unknown character width {text->CharSize}."),
        };
    }

    /// <summary>A new reference to a Python string, or to None for null. 0 with a Python error
    /// pending when the text has an unpaired surrogate.</summary>
    public static nint Write(string? text)
    {
        if (text is null)
        {
            return PyObjects.None();
        }
        fixed (char* start = text)
        {
            return PyHost.NewString(start, text.Length);
        }
    }

    private static string ReadCodePoints(ReadOnlySpan<uint> codePoints)
    {
        int length = codePoints.Length;
        foreach (uint codePoint in codePoints)
        {
            length += codePoint > char.MaxValue ? 1 : 0;
        }
        var result = new string('\0', length);
        fixed (char* start = result)
        {
            char* at = start;
            foreach (uint codePoint in codePoints)
            {
                at = Append(at, codePoint);
            }
        }
        return result;
    }

    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    private static char* Append(char* at, uint codePoint)
    {
        if (codePoint <= char.MaxValue)
        {
            *at++ = (char)codePoint;
            return at;
        }
        uint above = codePoint - 0x10000;
        *at++ = (char)(0xD800 + (above >> 10));
        *at++ = (char)(0xDC00 + (above & 0x3FF));
        return at;
    }
}
