using System;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>What a drawing database is written of.</summary>
internal sealed record DwgContent
{
    internal required CadAcadVersion Version { get; init; }

    /// <summary>Gets the release as a year.</summary>
    internal int Release => DrawingRelease.Year(Version);

    /// <summary>Gets the index of the code page.</summary>
    internal int CodePage { get; init; } = CodePageIndex.Default;

    /// <summary>Gets the data of the header section, without sizes and checksum.</summary>
    internal required ReadOnlyMemory<byte> Header { get; init; }

    /// <summary>Gets the data of the class section, without sizes and checksum.</summary>
    internal required ReadOnlyMemory<byte> Classes { get; init; }

    /// <summary>Gets the records of the objects.</summary>
    internal required ObjectStore Objects { get; init; }

    /// <summary>Gets the handles that the second header of release 2000 repeats: the next free one, those of the
    /// tables, and those of the dictionaries of named objects, multiline styles and groups.</summary>
    internal ulong[] SecondHeaderHandles { get; init; } = [];

    /// <summary>Gets a bitmap without its file header, or a file in the PNG format; empty for none.</summary>
    internal byte[] PreviewImage { get; init; } = [];

    internal byte[] SummaryInfo { get; init; } = [];

    internal byte[] AppInfo { get; init; } = [];

    internal byte[] RevHistory { get; init; } = [];

    internal byte[] VbaProject { get; init; } = [];

    internal byte[] FileDepList { get; init; } = [];

    internal byte[] Template { get; init; } = [];

    internal byte[] ObjFreeSpace { get; init; } = [];

    internal byte[] AuxHeader { get; init; } = [];

    internal byte[] AcdsPrototype { get; init; } = [];

    /// <summary>Gets the maintenance release, which decides about the form of some sections.</summary>
    internal static int MaintenanceOf(CadAcadVersion version) => version switch
    {
        CadAcadVersion.AC1015 => 15,
        CadAcadVersion.AC1018 => 104,
        CadAcadVersion.AC1024 => 109,
        CadAcadVersion.AC1027 => 8,
        _ => 4,
    };

    /// <summary>Gets the number that the format itself has for a release.</summary>
    internal static byte NumberOf(int release) => release switch
    {
        2000 => 23,
        2004 => 25,
        2007 => 27,
        2010 => 29,
        2013 => 31,
        _ => 33,
    };
}
