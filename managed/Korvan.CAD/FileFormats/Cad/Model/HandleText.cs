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

    internal static string Format(ulong handle) => handle.ToString("X", CultureInfo.InvariantCulture);
}
