using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A parameter that is the distance of two points.</summary>
[CadSequence]
[CadObject("BLOCKLINEARPARAMETER", Subclass = "AcDbBlockLinearParameter")]
[CadBits("base", "T DistanceLabel", "T DistanceDescription", "BD Distance", "ExchangeValues()")]
public partial class CadBlockLinearParameter : CadBlock2PtParameters
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockLinearParameter()
    {
    }

    /// <summary>Gets or sets the name of the distance. Group code 305.</summary>
    [CadString(305)]
    public string DistanceLabel { get; set; } = "";

    /// <summary>Gets or sets the description of the distance. Group code 306.</summary>
    [CadString(306)]
    public string DistanceDescription { get; set; } = "";

    /// <summary>Gets or sets the distance, in drawing units. Group code 140.</summary>
    [CadDouble(140)]
    public double Distance { get; set; }

    private readonly ParameterValueSet _values = new();

    /// <summary>Gets or sets the smallest distance. Group code 141.</summary>
    public double Minimum
    {
        get => _values.Minimum;
        set => _values.Minimum = value;
    }

    /// <summary>Gets or sets the largest distance. Group code 142.</summary>
    public double Maximum
    {
        get => _values.Maximum;
        set => _values.Maximum = value;
    }

    /// <summary>Gets or sets the step between distances. Group code 143.</summary>
    public double Increment
    {
        get => _values.Increment;
        set => _values.Increment = value;
    }

    /// <summary>Gets or sets which values the distance may take: 1 those of a list, 2 from the smallest, 4 up to the
    /// largest, 8 by steps; added up. Group code 96.</summary>
    public int ValueFlags
    {
        get => _values.Flags;
        set => _values.Flags = value;
    }

    /// <summary>Gets the distances of the list. The list is live. Group code 144.</summary>
    public List<double> Values => _values.Values;

    partial void OnExchange(ObjectExchange fields) => _values.Exchange(fields, (307, 96, 141, 175));

    private void ExchangeValues(BitExchange fields) => _values.ExchangeBits(fields);
}
