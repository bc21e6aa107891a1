using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>A variable of an associative network: a name and an expression.</summary>
[CadSequence]
[CadObject("ACDBASSOCVARIABLE", Subclass = "AcDbAssocVariable")]
[CadBits(
    "base", "BL VariableVersion", "T Name", "T Expression", "T Evaluator", "T Description", "Part Value", "B HasError",
    "T ErrorMessage", "B IsAnonymous", "if fields.HasMore: BL")]
public partial class CadAcDbAssocVariable : CadAcDbAssocAction
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbAssocVariable()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int VariableVersion { get; set; } = 2;

    /// <summary>Gets or sets the name. Group code 1.</summary>
    [CadString(1)]
    public string Name { get; set; } = "";

    /// <summary>Gets or sets the expression. Group code 1.</summary>
    [CadString(1)]
    public string Expression { get; set; } = "";

    /// <summary>Gets or sets the name of the evaluator of the expression. Group code 1.</summary>
    [CadString(1)]
    public string Evaluator { get; set; } = "";

    /// <summary>Gets or sets the description. Group code 1.</summary>
    [CadString(1)]
    public string Description { get; set; } = "";

    /// <summary>Gets the value of the expression.</summary>
    [CadPart]
    public AssocEvaluatedVariant Value { get; } = new();

    /// <summary>Gets or sets whether the last evaluation failed. Group code 290.</summary>
    [CadBool(290)]
    public bool HasError { get; set; }

    /// <summary>Gets or sets the message of the failed evaluation. Group code 1.</summary>
    [CadString(1)]
    public string ErrorMessage { get; set; } = "";

    /// <summary>Gets or sets whether the variable has no name that users see. Group code 290.</summary>
    [CadBool(290)]
    public bool IsAnonymous { get; set; }
}
