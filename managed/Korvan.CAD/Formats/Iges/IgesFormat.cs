using System;

namespace Korvan.CAD.Formats.Iges;

/// <summary>Files of the Initial Graphics Exchange Specification (IGES), which are detected only.</summary>
internal static class IgesFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "IGES",
        Formats = [FileFormat.Iges],
        Detect = static source => IsIges(source.FirstBytes) ? FileFormat.Iges : FileFormat.Undefined,
    };

    // Records of 80 characters: the 73rd is the section, a sequence number follows; the first section is "S" (IGES 5.3,
    // 2.2.1).
    private static bool IsIges(ReadOnlySpan<byte> start)
    {
        const int section = 72;
        const int recordLength = 80;
        return start.Length >= recordLength && start[section] == 'S' &&
            start[(section + 1)..recordLength].TrimStart(" 0"u8).SequenceEqual("1"u8);
    }
}
