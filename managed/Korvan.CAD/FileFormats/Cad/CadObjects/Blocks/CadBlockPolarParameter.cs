using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A parameter that is the distance of two points and an angle.</summary>
[CadSequence]
[CadObject("BLOCKPOLARPARAMETER", Subclass = "AcDbBlockPolarParameter")]
[CadBits(
    "base", "T DistanceLabel", "T DistanceDescription", "T AngleLabel", "T AngleDescription", "BD LabelOffset",
    "Part Distances", "Part Angles")]
internal sealed partial class CadBlockPolarParameter : CadBlock2PtParameters
{
    /// <summary>Gets or sets the name of the distance. Group code 305.</summary>
    [CadString(305)]
    internal string DistanceLabel { get; set; } = "";

    /// <summary>Gets or sets the description of the distance. Group code 306.</summary>
    [CadString(306)]
    internal string DistanceDescription { get; set; } = "";

    /// <summary>Gets or sets the name of the angle. Group code 307.</summary>
    [CadString(307)]
    internal string AngleLabel { get; set; } = "";

    /// <summary>Gets or sets the description of the angle. Group code 308.</summary>
    [CadString(308)]
    internal string AngleDescription { get; set; } = "";

    /// <summary>Gets or sets the distance of the label from the line of the points. Group code 140.</summary>
    [CadDouble(140)]
    internal double LabelOffset { get; set; }

    /// <summary>Gets the distances that the parameter may have. Group codes 96, 141 to 144.</summary>
    internal ParameterValueSet Distances { get; } = new();

    /// <summary>Gets the angles that the parameter may have, in radians. Group codes 97, 145 to 148.</summary>
    internal ParameterValueSet Angles { get; } = new();

    partial void OnExchange(ObjectExchange fields)
    {
        Distances.Exchange(fields, (309, 96, 141, 175));
        Angles.Exchange(fields, (410, 97, 145, 176));
    }
}
