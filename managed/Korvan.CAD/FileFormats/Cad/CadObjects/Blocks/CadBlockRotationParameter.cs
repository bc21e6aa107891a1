using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A parameter that is an angle.</summary>
[CadSequence]
[CadObject("BLOCKROTATIONPARAMETER", Subclass = "AcDbBlockRotationParameter")]
[CadBits("base", "3BD BaseAnglePoint", "T AngleLabel", "T AngleDescription", "BD Angle", "ExchangeValues()")]
public partial class CadBlockRotationParameter : CadBlock2PtParameters
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockRotationParameter()
    {
    }

    /// <summary>Gets or sets the name of the angle. Group code 305.</summary>
    [CadString(305)]
    public string AngleLabel { get; set; } = "";

    /// <summary>Gets or sets the description of the angle. Group code 306.</summary>
    [CadString(306)]
    public string AngleDescription { get; set; } = "";

    /// <summary>Gets or sets the point that states the direction of angle 0, in the coordinates of the block. Group
    /// codes 1011, 1021, 1031.</summary>
    [Cad3DPoint(1011)]
    public Cad3DPoint BaseAnglePoint { get; set; } = new();

    /// <summary>Gets or sets the angle, in radians. Group code 140.</summary>
    [CadDouble(140)]
    public double Angle { get; set; }

    private readonly ParameterValueSet _values = new();

    /// <summary>Gets or sets the smallest angle, in radians. Group code 141.</summary>
    public double Minimum
    {
        get => _values.Minimum;
        set => _values.Minimum = value;
    }

    /// <summary>Gets or sets the largest angle, in radians. Group code 142.</summary>
    public double Maximum
    {
        get => _values.Maximum;
        set => _values.Maximum = value;
    }

    /// <summary>Gets or sets the step between angles, in radians. Group code 143.</summary>
    public double Increment
    {
        get => _values.Increment;
        set => _values.Increment = value;
    }

    /// <summary>Gets or sets which values the angle may take: 1 those of a list, 2 from the smallest, 4 up to the
    /// largest, 8 by steps; added up. Group code 96.</summary>
    public int ValueFlags
    {
        get => _values.Flags;
        set => _values.Flags = value;
    }

    /// <summary>Gets the angles of the list, in radians. The list is live. Group code 144.</summary>
    public List<double> Values => _values.Values;

    partial void OnExchange(ObjectExchange fields) => _values.Exchange(fields, (307, 96, 141, 175));

    private void ExchangeValues(BitExchange fields) => _values.ExchangeBits(fields);
}
