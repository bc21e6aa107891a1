namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Words of clear text that several elements have in common (ISO/IEC 8632-4, clause 8).</summary>
internal static class SharedWords
{
    internal static readonly string[] Clipping = ["LOCUS", "SHAPE", "LOCUSTHENSHAPE"];

    internal static readonly string[] Closure = ["PIE", "CHORD"];

    internal static readonly string[] CharacterSets =
        ["STD94", "STD96", "STD94MULTIBYTE", "STD96MULTIBYTE", "COMPLETECODE"];

    internal static readonly string[] Widths = ["UI8", "UI16", "UI32"];

    internal static readonly string[] NoYes = ["NO", "YES"];
}
