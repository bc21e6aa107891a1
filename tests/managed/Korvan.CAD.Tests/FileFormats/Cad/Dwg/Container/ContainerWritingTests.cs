using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;
using Korvan.CAD.FileFormats.Cad.Dwg.Header;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Written containers, read again.</summary>
public class ContainerWritingTests
{
    [DrawingFact]
    public void Sections_of_real_files_are_the_same_after_writing()
    {
        List<string> wrong = [];
        foreach (string path in DwgSamples.Files())
        {
            DwgFile file = DwgSamples.Open(File.ReadAllBytes(path), path, new LoadOptions());
            if (file.Release < 2000 || file.Version == CadAcadVersion.AC1021)
            {
                continue;
            }

            using MemoryStream written = new();
            DwgContainer.Write(ContentOf(file), written);
            DwgFile again = DwgSamples.Open(written.ToArray(), path, new LoadOptions());
            if (!AreSame(file, again))
            {
                wrong.Add(Path.GetFileName(path));
            }
        }

        Assert.Empty(wrong);
    }

    [DrawingFact]
    public void Variables_and_classes_are_written_in_the_bits_that_files_have()
    {
        foreach (string path in DwgSamples.Files())
        {
            DwgFile file = DwgSamples.Open(File.ReadAllBytes(path), path, new LoadOptions());
            HeaderValues values = new();
            values.Exchange(new HeaderReader(file.Header, file.Release, file.Encoding));
            HeaderWriter header = new(file.Release, file.Encoding);
            values.Exchange(header);
            HeaderValues again = new();
            again.Exchange(new HeaderReader(header.ToArray(), file.Release, file.Encoding));
            Assert.All(values.Names, name => Assert.Equal(values[name], again[name]));

            List<CadClassEntity> read = ClassSection.Read(new(file.Classes, file.Release, file.Encoding));
            HeaderWriter classes = new(file.Release, file.Encoding);
            ClassSection.Write(classes, read);
            List<CadClassEntity> readAgain = ClassSection.Read(new(classes.ToArray(), file.Release, file.Encoding));
            Assert.Equal(read.Select(Describe), readAgain.Select(Describe));
        }
    }

    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    public void What_is_compressed_is_decompressed_again(int seed)
    {
        Random random = new(seed);
        Lz77Encoder encoder = new();
        for (int round = 0; round < 200; round++)
        {
            byte[] data = new byte[random.Next(4, 0x7400)];
            int alphabet = random.Next(1, 257);
            for (int i = 0; i < data.Length;)
            {
                int run = Math.Min(data.Length - i, random.Next(1, 400));
                if (random.Next(3) > 0 && i > 0)
                {
                    int from = random.Next(i);
                    for (int end = i + run; i < end; i++)
                    {
                        data[i] = data[from++];
                    }
                }
                else
                {
                    data[i++] = (byte)random.Next(alphabet);
                }
            }

            byte[] again = new byte[data.Length];
            Assert.Equal(data.Length, Lz77.Decompress(encoder.Compress(data), again));
            Assert.Equal(data, again);
        }
    }

    private static string Describe(CadClassEntity item) =>
        $"{item.DxfRecordName} {item.ClassName} {item.ApplicationName} {item.ProxyFlags}"
        + $"{item.InstanceCount} {item.WasAProxy} {item.IsEntity} {item.FormatVersion}";

    private static DwgContent ContentOf(DwgFile file)
    {
        ObjectStore objects = new(file.Release);
        for (int i = 0; i < file.Map.Count; i++)
        {
            (byte[] record, long handleBits) = DwgSamples.RecordOf(file, i);
            objects.Add(file.Map.Handles[i], record, handleBits);
        }

        return new DwgContent
        {
            Version = file.Version,
            CodePage = file.CodePage,
            Header = file.Header,
            Classes = file.Classes,
            Objects = objects,
            PreviewImage = PreviewSection.ImageOf(file.Preview).ToArray(),
            SummaryInfo = file.SummaryInfo,
            AppInfo = file.AppInfo,
            RevHistory = file.RevHistory,
            VbaProject = file.VbaProject,
            FileDepList = file.FileDepList,
            Template = file.Template,
            ObjFreeSpace = file.ObjFreeSpace,
            AuxHeader = file.AuxHeader,
            AcdsPrototype = file.AcdsPrototype,
            SecondHeaderHandles = [0x123, 1, 2, 3],
        };
    }

    private static bool AreSame(DwgFile file, DwgFile again)
    {
        (byte[] One, byte[] Other)[] sections =
        [
            (file.Header.ToArray(), again.Header.ToArray()), (file.Classes.ToArray(), again.Classes.ToArray()),
            (file.SummaryInfo, again.SummaryInfo), (file.AppInfo, again.AppInfo),
            (file.RevHistory, again.RevHistory), (file.FileDepList, again.FileDepList),
            (file.Template, again.Template), (file.ObjFreeSpace, again.ObjFreeSpace),
            (file.AuxHeader, again.AuxHeader), (file.AcdsPrototype, again.AcdsPrototype),
            (PreviewSection.ImageOf(file.Preview).ToArray(), PreviewSection.ImageOf(again.Preview).ToArray()),
        ];
        return sections.All(static pair => pair.One.AsSpan().SequenceEqual(pair.Other))
            && file.CodePage == again.CodePage && file.Map.Handles.AsSpan().SequenceEqual(again.Map.Handles)
            && Enumerable.Range(0, file.Map.Count).All(i =>
                DwgSamples.RecordOf(file, i).Record.AsSpan().SequenceEqual(DwgSamples.RecordOf(again, i).Record));
    }
}
