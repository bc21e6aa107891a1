using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A model of a building that is attached to the drawing.</summary>
[CadSequence]
[CadAlias("COORDINATION")]
[CadObject("COORDINATION_MODEL", Subclass = "AcDbNavisworksModel")]
[CadBits("BS Flags", "H DefinitionHandle", "BD[16] Transform", "BD UnitFactor")]
public partial class CadCoordinationModel : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadCoordinationModel()
    {
    }

    /// <summary>Gets or sets flags. Group code 70.</summary>
    [CadShort(70)]
    public short Flags { get; set; }

    /// <summary>Gets or sets the handle of the definition, which states the file, in hexadecimal. Group code
    /// 340.</summary>
    [CadHandle(340)]
    public string DefinitionHandle { get; set; } = "0";

    /// <summary>Gets the transform into world coordinates: 16 numbers, row by row. The list is live. Group code
    /// 40.</summary>
    [CadList(40, Max = 16)]
    public List<double> Transform { get; } = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];

    /// <summary>Gets or sets the length of a unit of the model, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double UnitFactor { get; set; } = 1;
}
