using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The action that mirrors entities of a dynamic block.</summary>
[CadSequence]
[CadObject("BLOCKFLIPACTION", Subclass = "AcDbBlockFlipAction")]
[CadBits(
    "base", "BL FlipStateId", "T FlipStateName", "BL UpdatedFlipStateId", "T UpdatedFlipStateName",
    "BL UpdatedBasePointId", "T UpdatedBasePointName", "BL UpdatedEndPointId", "T UpdatedEndPointName")]
public partial class CadBlockFlipAction : CadBlockAction
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockFlipAction()
    {
    }

    /// <summary>Gets or sets the index of the node with the state. Group code 92.</summary>
    [CadInt(92)]
    public int FlipStateId { get; set; }

    /// <summary>Gets or sets the index of the node with the new state. Group code 93.</summary>
    [CadInt(93)]
    public int UpdatedFlipStateId { get; set; }

    /// <summary>Gets or sets the index of the node with the start of the line. Group code 94.</summary>
    [CadInt(94)]
    public int UpdatedBasePointId { get; set; }

    /// <summary>Gets or sets the index of the node with the end of the line. Group code 95.</summary>
    [CadInt(95)]
    public int UpdatedEndPointId { get; set; }

    /// <summary>Gets or sets the name of the state. Group code 301.</summary>
    [CadString(301)]
    public string FlipStateName { get; set; } = "";

    /// <summary>Gets or sets the name of the new state. Group code 302.</summary>
    [CadString(302)]
    public string UpdatedFlipStateName { get; set; } = "";

    /// <summary>Gets or sets the name of the start of the line. Group code 303.</summary>
    [CadString(303)]
    public string UpdatedBasePointName { get; set; } = "";

    /// <summary>Gets or sets the name of the end of the line. Group code 304.</summary>
    [CadString(304)]
    public string UpdatedEndPointName { get; set; } = "";
}
