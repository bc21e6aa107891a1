namespace Korvan.CAD.Formats.Detection;

/// <summary>Formats of XML that are told apart by their root element, and neither read nor written.</summary>
internal static class KnownTexts
{
    internal static FormatRecord[] Records { get; } =
    [
        new()
        {
            Name = "Collada",
            Formats = [FileFormat.Collada],
            Detect = static source => XmlRoot.Is(source, "COLLADA") ? FileFormat.Collada : FileFormat.Undefined,
        },
    ];
}
