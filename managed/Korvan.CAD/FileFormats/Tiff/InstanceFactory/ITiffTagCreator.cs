using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.InstanceFactory;

/// <summary>Makes fields of one type.</summary>
public interface ITiffTagCreator
{
    /// <summary>Gets the type of the fields.</summary>
    TiffDataTypes TagType { get; }

    /// <summary>Makes a field without values.</summary>
    /// <param name="tagId">The number of the field, 0 to 65535.</param>
    TiffDataType CreateTag(int tagId);
}
