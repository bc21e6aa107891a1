using System;
using System.Globalization;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Handles are numbers that files spell in hexadecimal.</summary>
internal static class HandleText
{
    internal static ulong Parse(string text)
    {
        Verify.NotNull(text);
        if (text.Length == 0)
        {
            return 0;
        }

        return ulong.TryParse(text, NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture, out ulong handle)
            ? handle
            : throw new FormatException($"'{text}' is no handle; a handle is a hexadecimal number like 2F.");
    }

    internal static bool TryParse(string text, out ulong handle)
    {
        return ulong.TryParse(text, NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture, out handle);
    }

    internal static string Format(ulong handle)
    {
        const int bitsOfDigit = 4;
        Span<char> text = stackalloc char[sizeof(ulong) * 8 / bitsOfDigit];
        int start = text.Length;
        do
        {
            text[--start] = "0123456789ABCDEF"[(int)(handle & 0xF)];
            handle >>= bitsOfDigit;
        }
        while (handle != 0);
        return new string(text[start..]);
    }
}
