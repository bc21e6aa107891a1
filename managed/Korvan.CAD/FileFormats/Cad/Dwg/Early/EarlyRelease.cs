using System;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>Releases before 13, in the order of their layouts.</summary>
internal enum EarlyRelease
{
    /// <summary>None of the releases that are read.</summary>
    Unknown,

    /// <summary>Release 1.4, AC1.40: a header and entities, with layers that have numbers only.</summary>
    R14,

    /// <summary>Release 2.0, AC1.50: the first with sections, tables and entities that state their length.</summary>
    R20,

    /// <summary>Release 2.1, AC2.10.</summary>
    R21,

    /// <summary>Release 2.2, AC2.21 and AC2.22.</summary>
    R22,

    /// <summary>The release of AC1001.</summary>
    R24,

    /// <summary>Release 2.5, AC1002.</summary>
    R25,

    /// <summary>Release 2.6, AC1003.</summary>
    R26,

    /// <summary>Release 9, AC1004.</summary>
    R9,

    /// <summary>Release 10, AC1006: points in space, views and coordinate systems.</summary>
    R10,

    /// <summary>Releases 11 and 12, AC1009: paper space, extended data, dimension styles and checksums.</summary>
    R11,
}

/// <summary>Early releases by the first bytes of files.</summary>
internal static class EarlyReleases
{
    internal const int CodeLength = 6;

    /// <summary>Returns the release of a file.</summary>
    internal static EarlyRelease Of(ReadOnlySpan<byte> start) => start.Length < CodeLength ? EarlyRelease.Unknown
        : start[..CodeLength] switch
        {
            var code when code.SequenceEqual("AC1.40"u8) => EarlyRelease.R14,
            var code when code.SequenceEqual("AC1.50"u8) => EarlyRelease.R20,
            var code when code.SequenceEqual("AC2.10"u8) => EarlyRelease.R21,
            var code when code.SequenceEqual("AC2.21"u8) || code.SequenceEqual("AC2.22"u8) => EarlyRelease.R22,
            var code when code.SequenceEqual("AC1001"u8) => EarlyRelease.R24,
            var code when code.SequenceEqual("AC1002"u8) => EarlyRelease.R25,
            var code when code.SequenceEqual("AC1003"u8) => EarlyRelease.R26,
            var code when code.SequenceEqual("AC1004"u8) => EarlyRelease.R9,
            var code when code.SequenceEqual("AC1006"u8) => EarlyRelease.R10,
            var code when code.SequenceEqual("AC1009"u8) => EarlyRelease.R11,
            _ => EarlyRelease.Unknown,
        };

    /// <summary>Returns the release as $ACADVER; those before AC1001 have no code of that form and count as the first
    /// that has.</summary>
    internal static CadAcadVersion VersionOf(EarlyRelease release) => release switch
    {
        EarlyRelease.R25 => CadAcadVersion.AC1002,
        EarlyRelease.R26 => CadAcadVersion.AC1003,
        EarlyRelease.R9 => CadAcadVersion.AC1004,
        EarlyRelease.R10 => CadAcadVersion.AC1006,
        EarlyRelease.R11 => CadAcadVersion.AC1009,
        _ => CadAcadVersion.AC1001,
    };

    /// <summary>Returns the code that a file begins with, for messages.</summary>
    internal static string CodeOf(ReadOnlySpan<byte> start)
    {
        ReadOnlySpan<byte> code = start[..Math.Min(CodeLength, start.Length)];
        int end = code.IndexOf((byte)0);
        return Encoding.ASCII.GetString(end < 0 ? code : code[..end]);
    }
}
