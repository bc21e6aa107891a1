using System;

namespace Korvan.CAD.Formats.Iges;

/// <summary>Files of the Initial Graphics Exchange Specification, which are told apart.</summary>
internal static class IgesFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "IGES",
        Formats = [FileFormat.Iges],
        Detect = static source => IsIges(source.Head) ? FileFormat.Iges : FileFormat.Undefined,
    };

    // Records of 80 characters: the 73rd names the section, the others after it count; the first section is "S"
    // (IGES 5.3, 2.2.1).
    private static bool IsIges(ReadOnlySpan<byte> head)
    {
        const int Section = 72;
        const int RecordLength = 80;
        return head.Length >= RecordLength && head[Section] == 'S' &&
            head[(Section + 1)..RecordLength].TrimStart(" 0"u8).SequenceEqual("1"u8);
    }
}
