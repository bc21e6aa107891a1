using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A parameter that is the distances of two points along X and Y.</summary>
[CadSequence]
[CadObject("BLOCKXYPARAMETER", Subclass = "AcDbBlockXYParameter")]
[CadBits(
    "base", "T YLabel", "T XLabel", "T YDescription", "T XDescription", "BD YLabelOffset", "BD XLabelOffset",
    "Part YDistances", "Part XDistances")]
internal sealed partial class CadBlockXYParameter : CadBlock2PtParameters
{
    /// <summary>Gets or sets the name of the distance along Y. Group code 305.</summary>
    [CadString(305)]
    internal string YLabel { get; set; } = "";

    /// <summary>Gets or sets the name of the distance along X. Group code 306.</summary>
    [CadString(306)]
    internal string XLabel { get; set; } = "";

    /// <summary>Gets or sets the description of the distance along Y. Group code 307.</summary>
    [CadString(307)]
    internal string YDescription { get; set; } = "";

    /// <summary>Gets or sets the description of the distance along X. Group code 308.</summary>
    [CadString(308)]
    internal string XDescription { get; set; } = "";

    /// <summary>Gets or sets the distance of the label along Y from its line. Group code 141.</summary>
    [CadDouble(141)]
    internal double YLabelOffset { get; set; }

    /// <summary>Gets or sets the distance of the label along X from its line. Group code 140.</summary>
    [CadDouble(140)]
    internal double XLabelOffset { get; set; }

    /// <summary>Gets the distances along Y that the parameter may have. Group codes 97, 146 to 149.</summary>
    internal ParameterValueSet YDistances { get; } = new();

    /// <summary>Gets the distances along X that the parameter may have. Group codes 96, 142 to 145.</summary>
    internal ParameterValueSet XDistances { get; } = new();

    partial void OnExchange(ObjectExchange fields)
    {
        YDistances.Exchange(fields, (309, 97, 146, 176));
        XDistances.Exchange(fields, (410, 96, 142, 175));
    }
}
