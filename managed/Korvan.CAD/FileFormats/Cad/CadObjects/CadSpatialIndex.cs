using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The entities of a block by their places; text files have it without content.</summary>
[CadSequence]
[CadObject("SPATIAL_INDEX", Subclass = "AcDbIndex")]
[CadBits("ExchangeTime()", "partial")]
public partial class CadSpatialIndex : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSpatialIndex()
    {
    }

    /// <summary>Gets or sets the time of the last change, as a Julian date. Group code 40.</summary>
    [CadDouble(40)]
    public double LastUpdated { get; set; }

    /// <summary>Gets the extents of the entities, in world coordinates; none in most files. The list is live. Group
    /// code 40.</summary>
    [CadList(40)]
    [CadSubclass("AcDbSpatialIndex")]
    public List<double> Extents { get; } = [];

    private void ExchangeTime(BitExchange fields)
    {
        const double millisecondsPerDay = 86_400_000;
        int day = fields.BitLong((int)LastUpdated);
        LastUpdated = day + (fields.BitLong((int)((LastUpdated - day) * millisecondsPerDay)) / millisecondsPerDay);
    }
}
