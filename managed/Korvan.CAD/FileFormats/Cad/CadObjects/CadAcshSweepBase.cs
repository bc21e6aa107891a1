using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A solid in the history of a solid that was made by moving a profile along a line or a path.</summary>
[CadSequence]
[CadMarkers(Leading = "AcDbShPrimitive")]
[CadObject("", Subclass = "AcDbShSweepBase")]
[CadBits(
    "base", "BL SweepMajorVersion", "BL SweepMinorVersion", "3BD Direction",
    "BD DraftAngle", "BD DraftStartDistance", "BD DraftEndDistance", "BD TwistAngle", "BD ScaleFactor", "BD AlignAngle",
    "B IsSolid", "BS SweepAlignment", "BS PathFlags", "B AlignStart", "B Bank", "B HasBasePoint", "3BD TwistReference",
    "B IsSweepTransformComputed", "B IsPathTransformComputed", "Matrix SweepEntityTransform",
    "Matrix PathEntityTransform", "ExchangeProfile()", "ExchangePath()")]
internal abstract partial class CadAcshSweepBase : CadAcshHistoryNode
{
    private byte[] _sweepData = [];
    private byte[] _pathData = [];
    private int _sweepBytes;
    private int _pathBytes;

    /// <summary>Gets or sets the major version of the program that wrote the solid. Group code 90.</summary>
    [CadInt(90)]
    internal int SweepMajorVersion { get; set; } = 33;

    /// <summary>Gets or sets the minor version of the program that wrote the solid. Group code 91.</summary>
    [CadInt(91)]
    internal int SweepMinorVersion { get; set; } = 29;

    /// <summary>Gets or sets the direction and length of an extrusion. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    internal Cad3DPoint Direction { get; set; } = new();

    /// <summary>Gets or sets the class of the profile. Group code 92.</summary>
    [CadInt(92)]
    internal int SweepEntityClass { get; set; }

    /// <summary>Gets or sets the size of the profile in bits. Text files have more bytes than that. Group code
    /// 90.</summary>
    [CadInt(90, Optional = true)]
    internal int SweepEntitySize
    {
        get => SweepEntityData.Length * 8;
        set => _sweepBytes = value / 8;
    }

    /// <summary>Gets or sets the profile, in the form of binary drawings. Group code 310.</summary>
    [CadBinary(310, Optional = true)]
    internal byte[] SweepEntityData
    {
        get => _sweepData;
        set => _sweepData = _sweepBytes > 0 && value.Length > _sweepBytes ? value[.._sweepBytes] : value;
    }

    /// <summary>Gets or sets the class of the path; 0 for none. Group code 93.</summary>
    [CadInt(93)]
    internal int PathEntityClass { get; set; }

    /// <summary>Gets or sets the size of the path in bits. Text files have more bytes than that. Group code
    /// 90.</summary>
    [CadInt(90, Optional = true)]
    internal int PathEntitySize
    {
        get => PathEntityData.Length * 8;
        set => _pathBytes = value / 8;
    }

    /// <summary>Gets or sets the path, in the form of binary drawings. Group code 310.</summary>
    [CadBinary(310, Optional = true)]
    internal byte[] PathEntityData
    {
        get => _pathData;
        set => _pathData = _pathBytes > 0 && value.Length > _pathBytes ? value[.._pathBytes] : value;
    }

    /// <summary>Gets or sets the angle by which the solid narrows, in radians. Group code 42.</summary>
    [CadDouble(42)]
    internal double DraftAngle { get; set; }

    /// <summary>Gets or sets the distance at the start that does not narrow, in drawing units. Group code 43.</summary>
    [CadDouble(43)]
    internal double DraftStartDistance { get; set; }

    /// <summary>Gets or sets the distance at the end that does not narrow, in drawing units. Group code 44.</summary>
    [CadDouble(44)]
    internal double DraftEndDistance { get; set; }

    /// <summary>Gets or sets the angle by which the profile is twisted, in radians. Group code 45.</summary>
    [CadDouble(45)]
    internal double TwistAngle { get; set; }

    /// <summary>Gets or sets the scale of the profile at the end. Group code 48.</summary>
    [CadDouble(48)]
    internal double ScaleFactor { get; set; } = 1;

    /// <summary>Gets or sets the rotation of the profile, in radians. Group code 49.</summary>
    [CadDouble(49)]
    internal double AlignAngle { get; set; }

    /// <summary>Gets the transform of the profile: 16 numbers, row by row. Group code 46.</summary>
    [CadList(46, Max = 16)]
    internal List<double> SweepEntityTransform { get; } = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];

    /// <summary>Gets the transform of the path: 16 numbers, row by row. Group code 47.</summary>
    [CadList(47, Max = 16)]
    internal List<double> PathEntityTransform { get; } = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];

    /// <summary>Gets or sets whether the result is a solid. Group code 290.</summary>
    [CadBool(290)]
    internal bool IsSolid { get; set; } = true;

    /// <summary>Gets or sets how profile and path are aligned: 0 not, 1 the profile to the path, 2 the profile moved to
    /// the path, 3 the path moved to the profile. Group code 70.</summary>
    [CadShort(70)]
    internal short SweepAlignment { get; set; }

    /// <summary>Gets or sets flags of the path. Group code 71.</summary>
    [CadShort(71)]
    internal short PathFlags { get; set; }

    /// <summary>Gets or sets whether the profile is aligned at the start. Group code 292.</summary>
    [CadBool(292)]
    internal bool AlignStart { get; set; }

    /// <summary>Gets or sets whether the profile rotates with the path. Group code 293.</summary>
    [CadBool(293)]
    internal bool Bank { get; set; }

    /// <summary>Gets or sets whether a base point was stated. Group code 294.</summary>
    [CadBool(294)]
    internal bool HasBasePoint { get; set; }

    /// <summary>Gets or sets whether the transform of the profile was computed. Group code 295.</summary>
    [CadBool(295)]
    internal bool IsSweepTransformComputed { get; set; }

    /// <summary>Gets or sets whether the transform of the path was computed. Group code 296.</summary>
    [CadBool(296)]
    internal bool IsPathTransformComputed { get; set; }

    /// <summary>Gets or sets the direction that twists are measured from. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    internal Cad3DPoint TwistReference { get; set; } = new();

    private void ExchangeProfile(BitExchange fields) => (SweepEntityClass, SweepEntityData) =
        ModelerBits.ExchangeOptionalProfile(fields, SweepEntityClass, SweepEntityData);

    private void ExchangePath(BitExchange fields) => (PathEntityClass, PathEntityData) =
        ModelerBits.ExchangeOptionalProfile(fields, PathEntityClass, PathEntityData);
}

/// <summary>A solid in the history of a solid that was made by moving a profile along a path.</summary>
[CadSequence]
[CadObject("ACSH_SWEEP_CLASS", Subclass = "AcDbShSweep")]
[CadBits("base")]
internal sealed partial class CadAcshSweepClass : CadAcshSweepBase
{
}

/// <summary>An extrusion in the history of a solid.</summary>
[CadSequence]
[CadObject("ACSH_EXTRUSION_CLASS", Subclass = "AcDbShExtrusion")]
[CadBits("base")]
internal sealed partial class CadAcshExtrusionClass : CadAcshSweepBase
{
}
