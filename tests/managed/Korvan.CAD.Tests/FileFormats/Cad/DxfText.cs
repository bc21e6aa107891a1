using System;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Interchange files in a few words.</summary>
internal static class DxfText
{
    /// <summary>Tags as text: codes and values in turn.</summary>
    internal static string Tags(params object[] parts) =>
        string.Concat(parts.Select(part => FormattableString.Invariant($"{part}\n")));

    internal static string Header(string release, string page = "ANSI_1252") =>
        Tags(0, "SECTION", 2, "HEADER", 9, "$ACADVER", 1, release, 9, "$DWGCODEPAGE", 3, page, 0, "ENDSEC");

    internal static string Entities(params object[] tags) => Tags(0, "SECTION", 2, "ENTITIES") + Tags(tags)
        + Tags(0, "ENDSEC");

    internal static string Drawing(params object[] entities) => Header("AC1015") + Entities(entities) + Tags(0, "EOF");

    internal static DxfImage Load(string text, LoadOptions? options = null) =>
        Load(Encoding.Latin1.GetBytes(text), options);

    internal static DxfImage Load(byte[] bytes, LoadOptions? options = null) =>
        (DxfImage)Image.Load(new MemoryStream(bytes), options ?? new LoadOptions());

    internal static string Save(CadImage image)
    {
        using MemoryStream stream = new();
        image.Save(stream);
        return Encoding.UTF8.GetString(stream.ToArray());
    }

    internal static DxfImage Reload(CadImage image)
    {
        using MemoryStream stream = new();
        image.Save(stream);
        return Load(stream.ToArray());
    }
}
