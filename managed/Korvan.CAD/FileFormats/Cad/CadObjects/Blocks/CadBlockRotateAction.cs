using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The action that rotates entities of a dynamic block.</summary>
[CadSequence]
[CadObject("BLOCKROTATEACTION", Subclass = "AcDbBlockRotationAction")]
[CadBits("base", "BL AngleDeltaId", "T AngleDeltaName")]
public partial class CadBlockRotateAction : CadBlockActionWithBasePt
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockRotateAction()
    {
    }

    /// <summary>Gets or sets the index of the node with the angle. Group code 94.</summary>
    [CadInt(94)]
    public int AngleDeltaId { get; set; }

    /// <summary>Gets or sets the name of the angle. Group code 303.</summary>
    [CadString(303)]
    public string AngleDeltaName { get; set; } = "";
}
