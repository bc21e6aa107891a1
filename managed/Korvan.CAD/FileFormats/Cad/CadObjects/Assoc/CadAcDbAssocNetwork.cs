using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>A network of associative actions, which are evaluated in the order of their dependencies.</summary>
[CadSequence]
[CadObject("ACDBASSOCNETWORK", Subclass = "AcDbAssocNetwork")]
[CadBits("base", "BS NetworkVersion", "BL MaxActionIndex", "Part[BL] Actions", "H[BL] ActionsToEvaluate")]
public partial class CadAcDbAssocNetwork : CadAcDbAssocAction
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbAssocNetwork()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int NetworkVersion { get; set; }

    /// <summary>Gets or sets the largest index of an action. Group code 90.</summary>
    [CadInt(90)]
    public int MaxActionIndex { get; set; }

    /// <summary>Gets the actions of the network. The list is live. Group code 90.</summary>
    [CadRepeated(330, Count = 90)]
    public IList<AssocActionDependency> Actions { get; } = new CheckedList<AssocActionDependency>("actions");

    /// <summary>Gets the handles of the actions that have to be evaluated, in hexadecimal. The list is live. Group code
    /// 330.</summary>
    [CadList(330, Count = 90)]
    public List<string> ActionsToEvaluate { get; } = [];

    /// <inheritdoc/>
    public override string[] GetObjectHandles() => [.. Actions.Select(static one => one.ObjectHandle)];
}
