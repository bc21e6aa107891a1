using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>What actions of dynamic blocks have in common that have a base point.</summary>
[CadSequence]
[CadObject("", Subclass = "AcDbBlockActionWithBasePt")]
[CadBits(
    "base", "3BD Offset", "BL FirstConnectionId", "T FirstConnectionName", "BL SecondConnectionId",
    "T SecondConnectionName", "B IsDependent", "3BD ActionBasePoint")]
public abstract partial class CadBlockActionWithBasePt : CadBlockAction
{
    internal CadBlockActionWithBasePt()
    {
    }

    /// <summary>Gets or sets the index of the node that the first value comes from. Group code 92.</summary>
    [CadInt(92)]
    public int FirstConnectionId { get; set; }

    /// <summary>Gets or sets the index of the node that the second value comes from. Group code 93.</summary>
    [CadInt(93)]
    public int SecondConnectionId { get; set; }

    /// <summary>Gets or sets the name of the first value. Group code 301.</summary>
    [CadString(301)]
    public string FirstConnectionName { get; set; } = "";

    /// <summary>Gets or sets the name of the second value. Group code 302.</summary>
    [CadString(302)]
    public string SecondConnectionName { get; set; } = "";

    /// <summary>Gets or sets the offset of the base point. Group codes 1011, 1021, 1031.</summary>
    [Cad3DPoint(1011)]
    public Cad3DPoint Offset { get; set; } = new();

    /// <summary>Gets or sets whether the base point follows the parameter. Group code 280.</summary>
    [CadBool(280)]
    public bool IsDependent { get; set; } = true;

    /// <summary>Gets or sets the base point, in the coordinates of the block. Group codes 1012, 1022, 1032.</summary>
    [Cad3DPoint(1012)]
    public Cad3DPoint ActionBasePoint { get; set; } = new();
}
