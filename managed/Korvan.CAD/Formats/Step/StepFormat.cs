using System;
using System.Text;

namespace Korvan.CAD.Formats.Step;

/// <summary>Exchange files of ISO 10303-21, which are told apart by the schema that their header names.</summary>
internal static class StepFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "STEP",
        Formats = [FileFormat.Stp],
        Detect = static source => source.Search(static (start, isWhole) =>
            DetectSchema(start, isWhole) is { } schema ? schema == FileFormat.Undefined ? schema : FileFormat.Stp : null),
    };

    /// <summary>Tells the schema of an exchange file.</summary>
    /// <param name="start">The first bytes of the file.</param>
    /// <param name="isWhole">Whether these are all.</param>
    /// <returns>The format; <see cref="FileFormat.Undefined"/> for what is no exchange file; nothing while the header
    /// goes on.</returns>
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
