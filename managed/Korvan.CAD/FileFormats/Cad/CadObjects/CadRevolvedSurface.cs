using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A surface that was made by rotating a profile about an axis.</summary>
[CadSequence]
[CadObject("REVOLVEDSURFACE", Subclass = "AcDbModelerGeometry")]
[CadBits(
    "ExchangeModeler()", "BS UIsolines", "BS VIsolines",
    "BD DraftAngle", "BD DraftStartDistance", "BD DraftEndDistance", "BD TwistAngle", "B IsSolid", "B IsCloseToAxis",
    "3BD AxisPoint", "3BD AxisVector", "BD RevolveAngle", "BD StartAngle", "Matrix RevolvedEntityTransform",
    "ExchangeProfile()")]
public partial class CadRevolvedSurface : CadObjectWithAcisData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadRevolvedSurface()
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
    [CadSubclass("AcDbRevolvedSurface")]
    public int RevolvedEntityClass { get; set; }

    /// <summary>Gets or sets the size of the profile in bits, which follows from the data. Group code 90.</summary>
    [CadInt(90)]
    internal int RevolvedEntitySize
    {
        get => RevolvedEntityData.Length * 8;
        set => _ = value;
    }

    /// <summary>Gets or sets the profile, in the form of binary drawings. Group code 310.</summary>
    [CadBinary(310, Optional = true)]
    public byte[] RevolvedEntityData { get; set; } = [];

    /// <summary>Gets or sets a point of the axis, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint AxisPoint { get; set; } = new();

    /// <summary>Gets or sets the direction of the axis. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint AxisVector { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the angle of the rotation, in radians. Group code 40.</summary>
    [CadDouble(40)]
    public double RevolveAngle { get; set; }

    /// <summary>Gets or sets the angle of the start, in radians. Group code 41.</summary>
    [CadDouble(41)]
    public double StartAngle { get; set; }

    /// <summary>Gets the transform of the profile: 16 numbers, row by row. The list is live. Group code 42.</summary>
    [CadList(42, Max = 16)]
    public List<double> RevolvedEntityTransform { get; } = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];

    /// <summary>Gets or sets the angle by which the surface narrows, in radians. Group code 43.</summary>
    [CadDouble(43)]
    public double DraftAngle { get; set; }

    /// <summary>Gets or sets the distance at the start that does not narrow, in drawing units. Group code 44.</summary>
    [CadDouble(44)]
    public double DraftStartDistance { get; set; }

    /// <summary>Gets or sets the distance at the end that does not narrow, in drawing units. Group code 45.</summary>
    [CadDouble(45)]
    public double DraftEndDistance { get; set; }

    /// <summary>Gets or sets the angle by which the profile is twisted, in radians. Group code 46.</summary>
    [CadDouble(46)]
    public double TwistAngle { get; set; }

    /// <summary>Gets or sets whether the result is a solid. Group code 290.</summary>
    [CadBool(290)]
    public bool IsSolid { get; set; }

    /// <summary>Gets or sets whether ends of the profile are connected to the axis. Group code 291.</summary>
    [CadBool(291)]
    public bool IsCloseToAxis { get; set; }

    private void ExchangeProfile(BitExchange fields) =>
        (RevolvedEntityClass, RevolvedEntityData) =
            ModelerBits.ExchangeProfile(fields, RevolvedEntityClass, RevolvedEntityData);
}
