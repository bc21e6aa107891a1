using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>A dependency of an associative action on an object.</summary>
[CadSequence]
[CadObject("ACDBASSOCDEPENDENCY", Subclass = "AcDbAssocDependency")]
[CadBits(
    "BS DependencyVersion", "BL Status", "B IsReadDependency", "B IsWriteDependency", "B IsAttachedToObject",
    "B IsDelegatingToOwningAction", "BL Order", "H DependentOnObject", "B HasName", "if HasName: T Name",
    "H ReadDependency", "H NextDependency", "H DependencyBody", "BL DependencyIndex")]
public partial class CadAcDbAssocDependency : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbAssocDependency()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int DependencyVersion { get; set; } = 2;

    /// <summary>Gets or sets the status. Group code 90.</summary>
    [CadInt(90)]
    public AssocStatus Status { get; set; }

    /// <summary>Gets or sets whether the action reads the object. Group code 290.</summary>
    [CadBool(290)]
    public bool IsReadDependency { get; set; } = true;

    /// <summary>Gets or sets whether the action writes the object. Group code 290.</summary>
    [CadBool(290)]
    public bool IsWriteDependency { get; set; }

    /// <summary>Gets or sets whether the dependency is attached to the object. Group code 290.</summary>
    [CadBool(290)]
    public bool IsAttachedToObject { get; set; }

    /// <summary>Gets or sets whether changes are reported to the action. Group code 290.</summary>
    [CadBool(290)]
    public bool IsDelegatingToOwningAction { get; set; } = true;

    /// <summary>Gets or sets the order of evaluation. Group code 90.</summary>
    [CadInt(90)]
    public int Order { get; set; }

    /// <summary>Gets or sets the handle of the object in hexadecimal. Group code 330.</summary>
    [CadHandle(330)]
    public string DependentOnObject { get; set; } = "0";

    /// <summary>Gets or sets whether the dependency has a name. Group code 290.</summary>
    [CadBool(290)]
    public bool HasName { get; set; }

    /// <summary>Gets or sets the name. Group code 1.</summary>
    [CadString(1)]
    [CadWhen("HasName")]
    public string Name { get; set; } = "";

    /// <summary>Gets or sets the handle of the dependency that reads what this one writes, in hexadecimal. Group code
    /// 330.</summary>
    [CadHandle(330)]
    public string ReadDependency { get; set; } = "0";

    /// <summary>Gets or sets the handle of the next dependency on the object, in hexadecimal. Group code 330.</summary>
    [CadHandle(330)]
    public string NextDependency { get; set; } = "0";

    /// <summary>Gets or sets the handle of the object with further data, in hexadecimal. Group code 360.</summary>
    [CadHandle(360)]
    public string DependencyBody { get; set; } = "0";

    /// <summary>Gets or sets the index of the dependency in its action. Group code 90.</summary>
    [CadInt(90)]
    public int DependencyIndex { get; set; }
}
