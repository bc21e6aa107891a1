using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A class of objects that a program added to the drawing.</summary>
public partial class CadClassEntity : IKeyedObject
{
    /// <summary>Creates a class without names.</summary>
    public CadClassEntity()
    {
    }

    /// <summary>Gets what the class is found by: the name of its records.</summary>
    public string Key => DxfRecordName;

    /// <summary>Gets which class it is of those that the library knows.</summary>
    public CadClassTypeName ClassType => ClassTypeNames.Parse(DxfRecordName);

    /// <summary>Gets or sets the name that objects have in files. Group code 1.</summary>
    [CadString(1)]
    public string DxfRecordName { get; set; } = "";

    /// <summary>Gets or sets the name of the class in its program. Group code 2.</summary>
    [CadString(2)]
    public string ClassName { get; set; } = "";

    /// <summary>Gets or sets the program. Group code 3.</summary>
    [CadString(3)]
    public string ApplicationName { get; set; } = "";

    /// <summary>Gets or sets what may be done with objects when the program is missing. Group code 90.</summary>
    [CadInt(90)]
    public int ProxyFlags { get; set; }

    /// <summary>Gets or sets how many objects there are. Group code 91.</summary>
    [CadInt(91, Since = 2004)]
    public int InstanceCount { get; set; }

    /// <summary>Gets or sets whether the program was missing when the drawing was saved. Group code 280.</summary>
    [CadBool(280)]
    public bool WasAProxy { get; set; }

    /// <summary>Gets or sets whether objects of the class are drawn. Group code 281.</summary>
    [CadBool(281)]
    public bool IsEntity { get; set; }

    /// <summary>Gets or sets the release that the class came with, by the number that drawing databases have for it; 0
    /// if it is not stated.</summary>
    internal int FormatVersion { get; set; }

    /// <summary>Gets or sets the maintenance release that the class came with; 0 if it is not stated.</summary>
    internal int MaintenanceVersion { get; set; }

    /// <summary>Gets fields that the class does not have.</summary>
    internal List<CadCodeValue> Kept { get; } = [];

    partial void OnExchange(ObjectExchange fields) => fields.Tags(Kept);
}
