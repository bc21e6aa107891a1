using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The lights of a drawing.</summary>
[CadSequence]
[CadObject("LIGHTLIST", Subclass = "AcDbLightList")]
[CadBits("BL Version", "Part[BL] Entries")]
public partial class CadLightList : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadLightList()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int Version { get; set; } = 1;

    /// <summary>Gets the lights. The list is live. Group code 90.</summary>
    [CadRepeated(5, Count = 90)]
    internal IList<LightListEntry> Entries { get; } = new CheckedList<LightListEntry>("entries");

    /// <summary>Gets the handles of the lights in hexadecimal. Group code 5.</summary>
    /// <returns>The handles.</returns>
    public string[] GetLightHandles() => [.. Entries.Select(static entry => entry.LightHandle)];

    /// <summary>Gets the names of the lights. Group code 1.</summary>
    /// <returns>The names.</returns>
    public string[] GetLightNames() => [.. Entries.Select(static entry => entry.Name)];
}
