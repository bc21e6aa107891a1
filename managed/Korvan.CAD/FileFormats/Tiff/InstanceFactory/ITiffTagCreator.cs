using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.InstanceFactory;

/// <summary>Creates tags of one type.</summary>
public interface ITiffTagCreator
{
    /// <summary>Gets the type of the tags.</summary>
    TiffDataTypes TagType { get; }

    /// <summary>Creates a tag without values.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    TiffDataType CreateTag(int tagId);
}
