using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A surface that was made by moving a profile along a path.</summary>
[CadSequence]
[CadObject("SWEPTSURFACE", Subclass = "AcDbModelerGeometry")]
[CadBits(
    "ExchangeModeler()", "BS UIsolines", "BS VIsolines",
    "BD DraftAngle", "BD DraftStartDistance", "BD DraftEndDistance", "BD TwistAngle", "BD ScaleFactor", "BD AlignAngle",
    "B IsSolid", "BS SweepAlignment", "BS PathFlags", "B AlignStart", "B Bank", "B HasBasePoint", "3BD TwistReference",
    "B IsSweepTransformComputed", "B IsPathTransformComputed", "Matrix SweepEntityTransform",
    "Matrix PathEntityTransform", "Matrix SweepTransform",
    "Matrix PathTransform", "ExchangeProfile()", "ExchangePath()")]
public partial class CadSweptSurface : CadObjectWithAcisData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSweptSurface()
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

    /// <summary>Gets or sets the class of the profile. Group code 90.</summary>
    [CadInt(90)]
    [CadSubclass("AcDbSweptSurface")]
    public int SweepEntityClass { get; set; }

    /// <summary>Gets or sets the size of the profile in bits, which follows from the data. Group code 90.</summary>
    [CadInt(90)]
    internal int SweepEntitySize
    {
        get => SweepEntityData.Length * 8;
        set => _ = value;
    }

    /// <summary>Gets or sets the profile, in the form of binary drawings. Group code 310.</summary>
    [CadBinary(310, Optional = true)]
    public byte[] SweepEntityData { get; set; } = [];

    /// <summary>Gets or sets the class of the path. Group code 90.</summary>
    [CadInt(90)]
    public int PathEntityClass { get; set; }

    /// <summary>Gets or sets the size of the path in bits, which follows from the data. Group code 90.</summary>
    [CadInt(90)]
    internal int PathEntitySize
    {
        get => PathEntityData.Length * 8;
        set => _ = value;
    }

    /// <summary>Gets or sets the path, in the form of binary drawings. Group code 310.</summary>
    [CadBinary(310, Optional = true)]
    public byte[] PathEntityData { get; set; } = [];

    /// <summary>Gets the transform of the profile before alignment: 16 numbers, row by row. The list is live. Group
    /// code 40.</summary>
    [CadList(40, Max = 16)]
    public List<double> SweepTransform { get; } = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];

    /// <summary>Gets the transform of the path before alignment: 16 numbers, row by row. The list is live. Group code
    /// 41.</summary>
    [CadList(41, Max = 16)]
    public List<double> PathTransform { get; } = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];

    /// <summary>Gets or sets the angle by which the surface narrows, in radians. Group code 42.</summary>
    [CadDouble(42)]
    public double DraftAngle { get; set; }

    /// <summary>Gets or sets the distance at the start that does not narrow, in drawing units. Group code 43.</summary>
    [CadDouble(43)]
    public double DraftStartDistance { get; set; }

    /// <summary>Gets or sets the distance at the end that does not narrow, in drawing units. Group code 44.</summary>
    [CadDouble(44)]
    public double DraftEndDistance { get; set; }

    /// <summary>Gets or sets the angle by which the profile is twisted, in radians. Group code 45.</summary>
    [CadDouble(45)]
    public double TwistAngle { get; set; }

    /// <summary>Gets or sets the scale of the profile at the end. Group code 48.</summary>
    [CadDouble(48)]
    public double ScaleFactor { get; set; } = 1;

    /// <summary>Gets or sets the rotation of the profile, in radians. Group code 49.</summary>
    [CadDouble(49)]
    public double AlignAngle { get; set; }

    /// <summary>Gets the transform of the profile: 16 numbers, row by row. The list is live. Group code 46.</summary>
    [CadList(46, Max = 16)]
    public List<double> SweepEntityTransform { get; } = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];

    /// <summary>Gets the transform of the path: 16 numbers, row by row. The list is live. Group code 47.</summary>
    [CadList(47, Max = 16)]
    public List<double> PathEntityTransform { get; } = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];

    /// <summary>Gets or sets whether the result is a solid. Group code 290.</summary>
    [CadBool(290)]
    public bool IsSolid { get; set; }

    /// <summary>Gets or sets how profile and path are aligned: 0 not, 1 the profile to the path, 2 the profile moved to
    /// the path, 3 the path moved to the profile. Group code 70.</summary>
    [CadShort(70)]
    public short SweepAlignment { get; set; } = 1;

    /// <summary>Gets or sets flags of the path. Group code 71.</summary>
    [CadShort(71, Optional = true)]
    public short PathFlags { get; set; }

    /// <summary>Gets or sets whether the profile is aligned at the start. Group code 292.</summary>
    [CadBool(292)]
    public bool AlignStart { get; set; }

    /// <summary>Gets or sets whether the profile rotates with the path. Group code 293.</summary>
    [CadBool(293)]
    public bool Bank { get; set; }

    /// <summary>Gets or sets whether a base point was stated. Group code 294.</summary>
    [CadBool(294)]
    public bool HasBasePoint { get; set; }

    /// <summary>Gets or sets whether the transform of the profile was computed. Group code 295.</summary>
    [CadBool(295)]
    public bool IsSweepTransformComputed { get; set; }

    /// <summary>Gets or sets whether the transform of the path was computed. Group code 296.</summary>
    [CadBool(296)]
    public bool IsPathTransformComputed { get; set; }

    /// <summary>Gets or sets the direction that twists are measured from. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint TwistReference { get; set; } = new();

    private void ExchangeProfile(BitExchange fields) =>
        (SweepEntityClass, SweepEntityData) = ModelerBits.ExchangeProfile(fields, SweepEntityClass, SweepEntityData);

    private void ExchangePath(BitExchange fields) =>
        (PathEntityClass, PathEntityData) = ModelerBits.ExchangeProfile(fields, PathEntityClass, PathEntityData);
}
