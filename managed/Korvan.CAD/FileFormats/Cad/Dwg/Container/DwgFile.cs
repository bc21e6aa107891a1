using System;
using System.Buffers.Binary;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>The sections of a drawing database of release 13 or later, decompressed; those that the file does not have
/// are empty.</summary>
internal sealed class DwgFile
{
    /// <summary>Gets the file that the sections were read from, which collects defects.</summary>
    internal required DwgSource Source { get; init; }

    internal required CadAcadVersion Version { get; init; }

    /// <summary>Gets the release as a year, as <see cref="DrawingRelease.Year"/> does.</summary>
    internal int Release => DrawingRelease.Year(Version);

    /// <summary>Gets the maintenance release that wrote the file.</summary>
    internal int MaintenanceVersion { get; init; }

    /// <summary>Gets the index of the code page.</summary>
    internal int CodePage { get; init; }

    /// <summary>Gets the encoding of strings of 8-bit characters.</summary>
    internal required Encoding Encoding { get; init; }

    /// <summary>Gets or sets the data of the section AcDb:Header, from the first field after its sizes up to its
    /// checksum.</summary>
    internal ReadOnlyMemory<byte> Header { get; set; }

    /// <summary>Gets or sets the data of the section AcDb:Classes, from the first field after its sizes up to its
    /// checksum.</summary>
    internal ReadOnlyMemory<byte> Classes { get; set; }

    /// <summary>Gets or sets the section AcDb:AcDbObjects; the whole file up to release 2000.</summary>
    internal byte[] Objects { get; set; } = [];

    /// <summary>Gets or sets where the objects are in <see cref="Objects"/>.</summary>
    internal ObjectMap Map { get; set; } = ObjectMap.Empty;

    internal byte[] Preview { get; set; } = [];

    internal byte[] SummaryInfo { get; set; } = [];

    internal byte[] AppInfo { get; set; } = [];

    internal byte[] AppInfoHistory { get; set; } = [];

    internal byte[] RevHistory { get; set; } = [];

    internal byte[] VbaProject { get; set; } = [];

    internal byte[] FileDepList { get; set; } = [];

    internal byte[] Template { get; set; } = [];

    internal byte[] ObjFreeSpace { get; set; } = [];

    internal byte[] AuxHeader { get; set; } = [];

    /// <summary>Gets or sets the section AcDb:AcDsPrototype_1b, the data of solids from release 2013 on.</summary>
    internal byte[] AcdsPrototype { get; set; } = [];

    internal byte[] Signature { get; set; } = [];

    internal byte[] Security { get; set; } = [];

    /// <summary>Determines whether a record of an object has the checksum that follows it.</summary>
    /// <param name="start">The first byte of its size in <see cref="Objects"/>.</param>
    /// <param name="end">The byte after it.</param>
    internal bool HasRightChecksum(long start, long end) => start >= 0 && end <= Objects.Length - sizeof(ushort)
        && Crc16.Compute(Crc16.Seed, Objects.AsSpan((int)start, (int)(end - start)))
            == BinaryPrimitives.ReadUInt16LittleEndian(Objects.AsSpan((int)end));
}
