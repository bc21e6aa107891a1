using System;
using System.Text;

namespace Korvan.CAD.Formats.Step;

/// <summary>Clear text files of ISO 10303-21, detected by the schema in their header.</summary>
internal static class StepFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "STEP",
        Formats = [FileFormat.Stp],
        Detect = static source => source.Search(static (start, isWhole) =>
            DetectSchema(start, isWhole) is not { } schema ? null
                : schema == FileFormat.Undefined ? schema
                : FileFormat.Stp),
    };

    /// <summary>Detects the format by the schema of a clear text file.</summary>
    /// <param name="start">The first bytes of the file.</param>
    /// <param name="isWhole">Whether this is the whole file.</param>
    /// <returns>The format; <see cref="FileFormat.Undefined"/> for other files; <see langword="null"/> if the header
    /// continues beyond these bytes.</returns>
    internal static FileFormat? DetectSchema(ReadOnlySpan<byte> start, bool isWhole)
    {
        if (!start.TrimStart("\uFEFF \t\r\n"u8).StartsWith("ISO-10303-21"u8))
        {
            return FileFormat.Undefined;
        }

        int schema = start.IndexOf("FILE_SCHEMA"u8);
        int name = schema < 0 ? -1 : start[schema..].IndexOf((byte)'\'');
        ReadOnlySpan<byte> stated = name < 0 ? [] : start[(schema + name + 1)..];
        if (stated.Length <= 3)
        {
            return isWhole ? FileFormat.Stp : null;
        }

        bool isBuilding = Ascii.EqualsIgnoreCase(stated[..3], "IFC"u8);
        return !isBuilding ? FileFormat.Stp : stated[3] == '2' ? FileFormat.IFC2X3 : FileFormat.IFC4;
    }
}
