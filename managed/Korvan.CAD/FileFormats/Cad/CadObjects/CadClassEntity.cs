using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A class of objects that a program added to the drawing.</summary>
public class CadClassEntity : IKeyedObject
{
    /// <summary>Creates a class without names.</summary>
    public CadClassEntity()
    {
    }

    /// <summary>Gets what the class is found by: the name of its records.</summary>
    public string Key => DxfRecordName;

    /// <summary>Gets or sets the name that objects have in files. Group code 1.</summary>
    public string DxfRecordName { get; set; } = "";

    /// <summary>Gets or sets the name of the class in its program. Group code 2.</summary>
    public string ClassName { get; set; } = "";

    /// <summary>Gets or sets the program. Group code 3.</summary>
    public string ApplicationName { get; set; } = "";

    /// <summary>Gets or sets what may be done with objects when the program is missing. Group code 90.</summary>
    public int ProxyFlags { get; set; }

    /// <summary>Gets or sets how many objects there are. Group code 91.</summary>
    public int InstanceCount { get; set; }

    /// <summary>Gets or sets whether the program was missing when the drawing was saved. Group code 280.</summary>
    public bool WasAProxy { get; set; }

    /// <summary>Gets or sets whether objects of the class are drawn. Group code 281.</summary>
    public bool IsEntity { get; set; }

    internal List<CadCodeValue> Kept { get; } = [];

    internal void ReadField(FieldReader reader)
    {
        switch (reader.Code)
        {
            case 1:
                DxfRecordName = reader.GetString();
                break;
            case 2:
                ClassName = reader.GetString();
                break;
            case 3:
                ApplicationName = reader.GetString();
                break;
            case 90:
                ProxyFlags = reader.GetInt();
                break;
            case 91:
                InstanceCount = reader.GetInt();
                break;
            case 280:
                WasAProxy = reader.GetInt() != 0;
                break;
            case 281:
                IsEntity = reader.GetInt() != 0;
                break;
            default:
                Kept.Add(reader.ToCodeValue());
                break;
        }
    }

    internal void Exchange(ObjectExchange fields)
    {
        DxfRecordName = fields.Text(1, DxfRecordName);
        ClassName = fields.Text(2, ClassName);
        ApplicationName = fields.Text(3, ApplicationName);
        ProxyFlags = fields.Int32(90, ProxyFlags);
        if (fields.Includes(2004, true))
        {
            InstanceCount = fields.Int32(91, InstanceCount);
        }

        WasAProxy = fields.Bool(280, WasAProxy);
        IsEntity = fields.Bool(281, IsEntity);
        fields.Tags(Kept);
    }
}
