using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>An associative action: it evaluates objects when those it depends on change.</summary>
[CadSequence]
[CadObject("ACDBASSOCACTION", Subclass = "AcDbAssocAction")]
[CadBits(
    "BS ActionVersion", "BL Status", "H OwningNetwork", "H ActionBody", "BL ActionIndex", "BL MaxDependencyIndex",
    "Part[BL] Dependencies", "if ActionVersion > 1: BS ParameterVersion",
    "if ActionVersion > 1: H[BL] ParameterHandles", "if ActionVersion > 1: BS ValueVersion",
    "if ActionVersion > 1: Part[BL] ValueList")]
public partial class CadAcDbAssocAction : CadObjectBase, ICadObjectContainer
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbAssocAction()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int ActionVersion { get; set; } = 2;

    /// <summary>Gets or sets the status. Group code 90.</summary>
    [CadInt(90)]
    public AssocStatus Status { get; set; }

    /// <summary>Gets or sets the handle of the network that owns the action, in hexadecimal. Group code 330.</summary>
    [CadHandle(330)]
    public string OwningNetwork { get; set; } = "0";

    /// <summary>Gets or sets the handle of the object that carries the action out, in hexadecimal; 0 for none. Group
    /// code 360.</summary>
    [CadHandle(360)]
    public string ActionBody { get; set; } = "0";

    /// <summary>Gets or sets the index of the action in its network. Group code 90.</summary>
    [CadInt(90)]
    public int ActionIndex { get; set; }

    /// <summary>Gets or sets the largest index of a dependency. Group code 90.</summary>
    [CadInt(90)]
    public int MaxDependencyIndex { get; set; }

    /// <summary>Gets the dependencies. The list is live. Group code 90.</summary>
    [CadRepeated(330, Count = 90)]
    public IList<AssocActionDependency> Dependencies { get; } = new CheckedList<AssocActionDependency>("dependencies");

    /// <summary>Gets or sets the version of the parameters. Group code 90.</summary>
    [CadShort(90)]
    [CadWhen("ActionVersion > 1")]
    internal short ParameterVersion { get; set; }

    /// <summary>Gets the handles of the parameters that the action owns, in hexadecimal. The list is live. Group code
    /// 360.</summary>
    [CadList(360, Count = 90)]
    [CadWhen("ActionVersion > 1")]
    public List<string> ParameterHandles { get; } = [];

    /// <summary>Gets or sets the version of the values. Group code 90.</summary>
    [CadShort(90)]
    [CadWhen("ActionVersion > 1")]
    internal short ValueVersion { get; set; }

    /// <summary>Gets the named values. The list is live. Group code 90.</summary>
    [CadRepeated(90, Count = 90)]
    [CadWhen("ActionVersion > 1")]
    internal IList<AssocValue> ValueList { get; } = new CheckedList<AssocValue>("value_list");

    /// <summary>Gets the names of the values of the action. Group code 1.</summary>
    /// <returns>The names.</returns>
    public string[] GetValueNames() => [.. ValueList.Select(static value => value.Name)];

    /// <inheritdoc/>
    public virtual string[] GetObjectHandles() => [.. Dependencies.Select(static one => one.ObjectHandle)];
}
