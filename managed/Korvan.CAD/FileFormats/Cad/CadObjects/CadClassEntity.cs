using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Dxf;

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

    internal void ReadCode(DxfTagReader tags)
    {
        switch (tags.Code)
        {
            case 1:
                DxfRecordName = tags.GetString();
                break;
            case 2:
                ClassName = tags.GetString();
                break;
            case 3:
                ApplicationName = tags.GetString();
                break;
            case 90:
                ProxyFlags = tags.GetInt();
                break;
            case 91:
                InstanceCount = tags.GetInt();
                break;
            case 280:
                WasAProxy = tags.GetInt() != 0;
                break;
            case 281:
                IsEntity = tags.GetInt() != 0;
                break;
            default:
                Kept.Add(tags.ToCodeValue());
                break;
        }
    }

    internal void WriteCodes(DxfTagWriter writer)
    {
        writer.Write(1, DxfRecordName);
        writer.Write(2, ClassName);
        writer.Write(3, ApplicationName);
        writer.Write(90, ProxyFlags);
        if (writer.Release >= 2004)
        {
            writer.Write(91, InstanceCount);
        }

        writer.Write(280, WasAProxy ? 1 : 0);
        writer.Write(281, IsEntity ? 1 : 0);
        Kept.ForEach(writer.Write);
    }
}
