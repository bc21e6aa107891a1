using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>A dependency of an associative action on a part of an entity: a face, an edge or a vertex.</summary>
[CadSequence]
[CadObject("ACDBASSOCGEOMDEPENDENCY", Subclass = "AcDbAssocGeomDependency")]
public partial class CadAcDbAssocGeomDependency : CadAcDbAssocDependency
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbAssocGeomDependency()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int GeometryVersion { get; set; }

    /// <summary>Gets or sets whether the dependency is enabled. Group code 290.</summary>
    [CadBool(290)]
    public bool IsEnabled { get; set; } = true;

    /// <summary>Gets or sets the class of the identifier of the part. Group code 1.</summary>
    [CadString(1)]
    public string SubentityClass { get; set; } = "";

    /// <summary>Gets the tags of the identifier, whose form its class states.</summary>
    internal List<CadCodeValue> Subentity { get; } = [];

    partial void OnExchange(ObjectExchange fields) => fields.Tags(Subentity);
}
