using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A surface through several profiles.</summary>
[CadSequence]
[CadObject("LOFTEDSURFACE", Subclass = "AcDbModelerGeometry")]
[CadBits(
    "ExchangeModeler()", "BS UIsolines", "BS VIsolines",
    "Matrix LoftEntityTransform", "ExchangeCounts()", "BD StartDraftAngle", "BD EndDraftAngle",
    "BD StartDraftMagnitude", "BD EndDraftMagnitude", "B ArcLengthParameterization", "B NoTwist", "B AlignDirection",
    "B CreateSimpleSurfaces", "B CreateClosedSurface", "B IsSolid", "B CreateRuledSurface", "B HasVirtualGuide",
    "BS PlaneNormalLofting", "ExchangeEntities()")]
public partial class CadLoftedSurface : CadObjectWithAcisData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadLoftedSurface()
    {
    }

    /// <summary>Gets the fields of the modeler.</summary>
    [CadPart]
    internal ModelerFields Modeler => new(this);

    /// <summary>Gets or sets the number of lines along U. Group code 71.</summary>
    [CadShort(71)]
    [CadSubclass("AcDbSurface")]
    public short UIsolines { get; set; } = 6;

    /// <summary>Gets or sets the number of lines along V. Group code 72.</summary>
    [CadShort(72)]
    public short VIsolines { get; set; } = 6;

    /// <summary>Gets the transform of the profiles: 16 numbers, row by row. The list is live. Group code 40.</summary>
    [CadList(40, Max = 16)]
    [CadSubclass("AcDbLoftedSurface")]
    public List<double> LoftEntityTransform { get; } = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];

    /// <summary>Gets the profiles, guides and paths. The list is live. Group code 90.</summary>
    [CadRepeated(90)]
    internal IList<LoftEntity> Entities { get; } = new CheckedList<LoftEntity>("entities");

    /// <summary>Gets or sets how many of the entities are guides; they follow the profiles.</summary>
    internal int GuideCount { get; set; }

    /// <summary>Gets or sets whether the last of the entities is a path.</summary>
    internal bool HasPath { get; set; }

    /// <summary>Gets or sets where the surface is perpendicular to the profiles: 0 ruled, 1 smooth, 2 at the first, 3
    /// at the last, 4 at both, 5 at all, 6 by draft angles. Group code 70.</summary>
    [CadShort(70)]
    public short PlaneNormalLofting { get; set; } = 1;

    /// <summary>Gets or sets the draft angle at the start, in radians. Group code 41.</summary>
    [CadDouble(41)]
    public double StartDraftAngle { get; set; }

    /// <summary>Gets or sets the draft angle at the end, in radians. Group code 42.</summary>
    [CadDouble(42)]
    public double EndDraftAngle { get; set; }

    /// <summary>Gets or sets the weight of the draft angle at the start. Group code 43.</summary>
    [CadDouble(43)]
    public double StartDraftMagnitude { get; set; }

    /// <summary>Gets or sets the weight of the draft angle at the end. Group code 44.</summary>
    [CadDouble(44)]
    public double EndDraftMagnitude { get; set; }

    /// <summary>Gets or sets whether profiles are matched by length. Group code 290.</summary>
    [CadBool(290)]
    public bool ArcLengthParameterization { get; set; }

    /// <summary>Gets or sets whether profiles are not twisted against one another. Group code 291.</summary>
    [CadBool(291)]
    public bool NoTwist { get; set; } = true;

    /// <summary>Gets or sets whether the directions of profiles are matched. Group code 292.</summary>
    [CadBool(292)]
    public bool AlignDirection { get; set; } = true;

    /// <summary>Gets or sets whether simple surfaces are made where possible. Group code 293.</summary>
    [CadBool(293)]
    public bool CreateSimpleSurfaces { get; set; }

    /// <summary>Gets or sets whether the surface is closed. Group code 294.</summary>
    [CadBool(294)]
    public bool CreateClosedSurface { get; set; }

    /// <summary>Gets or sets whether the result is a solid. Group code 295.</summary>
    [CadBool(295)]
    public bool IsSolid { get; set; }

    /// <summary>Gets or sets whether the surface is ruled. Group code 296.</summary>
    [CadBool(296)]
    public bool CreateRuledSurface { get; set; }

    /// <summary>Gets or sets whether a guide was added. Group code 297.</summary>
    [CadBool(297)]
    public bool HasVirtualGuide { get; set; }

    private void ExchangeCounts(BitExchange fields)
    {
        int others = GuideCount + (HasPath ? 1 : 0);
        int profiles = fields.CountLong(System.Math.Max(0, Entities.Count - others));
        GuideCount = fields.CountLong(GuideCount);
        HasPath = fields.Bit(HasPath);
        for (int i = profiles + GuideCount + (HasPath ? 1 : 0); fields.IsReading && i > 0; i--)
        {
            Entities.Add(new LoftEntity());
        }
    }

    private void ExchangeEntities(BitExchange fields)
    {
        foreach (LoftEntity entity in Entities)
        {
            (entity.EntityClass, entity.Data) = ModelerBits.ExchangeProfile(fields, entity.EntityClass, entity.Data);
        }
    }
}
