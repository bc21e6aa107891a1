namespace Korvan.CAD.Formats.Detection;

/// <summary>XML formats that are detected by their root element, but neither read nor written.</summary>
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
