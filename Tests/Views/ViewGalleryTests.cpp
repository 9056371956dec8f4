#include "Views/EditorViews.h"
#include "WidgetRenderer.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace
{
	const FString GalleryFolder = FString(TEXT(CASTELLAN_REPOSITORY_ROOT "/Docs/Views"));
	const char* const RegenerateCommand = "./build/default/Binaries/castellan-headless gallery Docs/Views";

	/**
	 * How far a channel may stray, in levels of 255. Pixman picks its compositing code for the processor
	 * at run time, and its paths round blends and scaled images differently by a level or two; a view
	 * that changes moves or recolours whole glyphs and edges, which differ by far more.
	 */
	const int32 ChannelTolerance = 4;

	/** The pixels where two pictures differ by more than the tolerance, and the first of them in reading order. */
	struct FPictureDifference
	{
		int32 Count = 0;
		int32 FirstX = -1;
		int32 FirstY = -1;
		FColor Expected;
		FColor Actual;
	};

	int32 GetChannelDifference(const FColor& A, const FColor& B)
	{
		return std::max({std::abs(A.R - B.R), std::abs(A.G - B.G), std::abs(A.B - B.B), std::abs(A.A - B.A)});
	}

	FPictureDifference Compare(const FRenderedImage& Expected, const FRenderedImage& Actual)
	{
		FPictureDifference Difference;
		for (int32 Y = 0; Y < Expected.Height; ++Y)
		{
			for (int32 X = 0; X < Expected.Width; ++X)
			{
				const FColor ExpectedPixel = Expected.GetPixel(X, Y);
				const FColor ActualPixel = Actual.GetPixel(X, Y);
				if (GetChannelDifference(ExpectedPixel, ActualPixel) <= ChannelTolerance)
				{
					continue;
				}
				if (Difference.Count++ == 0)
				{
					Difference.FirstX = X;
					Difference.FirstY = Y;
					Difference.Expected = ExpectedPixel;
					Difference.Actual = ActualPixel;
				}
			}
		}
		return Difference;
	}

	std::string Describe(const FColor& Color)
	{
		return "RGBA(" + std::to_string(Color.R) + ", " + std::to_string(Color.G) + ", " + std::to_string(Color.B) + ", " + std::to_string(Color.A) + ")";
	}

	FString GetPicturePath(const FEditorView& View)
	{
		return GalleryFolder / (View.Name + TEXT(".png"));
	}
}

TEST(ViewGallery, EveryViewLooksAsItsCommittedPicture)
{
	for (const FEditorView& View : FEditorViews::GetAll())
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*View.Name));
		const TOptional<FRenderedImage> Committed = FRenderedImage::LoadPng(GetPicturePath(View));
		ASSERT_TRUE(Committed.IsSet()) << "no picture at " << TCHAR_TO_UTF8(*GetPicturePath(View)) << "; make the gallery with " << RegenerateCommand;
		const FShownEditorView Shown = View.Show(FEditorViewArguments(View.Options));
		const FRenderedImage Rendered = Shown.Render();
		ASSERT_EQ(Rendered.Width, Committed->Width) << "the view changed size; if on purpose, run " << RegenerateCommand;
		ASSERT_EQ(Rendered.Height, Committed->Height) << "the view changed size; if on purpose, run " << RegenerateCommand;

		const FPictureDifference Difference = Compare(Committed.GetValue(), Rendered);
		EXPECT_EQ(Difference.Count, 0) << "pixels differ by more than " << ChannelTolerance << " levels, the first at (" << Difference.FirstX << ", " << Difference.FirstY << "): "
									   << Describe(Difference.Expected) << " in the gallery, " << Describe(Difference.Actual) << " now; if the view changed on purpose, run " << RegenerateCommand;
	}
}

TEST(ViewGallery, EveryPictureInTheGalleryIsAView)
{
	int32 Pictures = 0;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(TCHAR_TO_UTF8(*GalleryFolder)))
	{
		++Pictures;
		const std::string Name = Entry.path().filename().string();
		EXPECT_EQ(Entry.path().extension(), ".png") << Name;
		EXPECT_NE(FEditorViews::Find(FString(UTF8_TO_TCHAR(Entry.path().stem().string().c_str()))), nullptr) << Name << " is the picture of no view";
	}
	EXPECT_EQ(Pictures, FEditorViews::GetAll().Num());
}

TEST(ViewGallery, AViewDrawsTheSameBytesEachTime)
{
	for (const FEditorView& View : FEditorViews::GetAll())
	{
		TArray<uint8> First;
		TArray<uint8> Again;
		{
			const FShownEditorView Shown = View.Show(FEditorViewArguments(View.Options));
			First = Shown.Render().Data;
			Again = Shown.Render().Data;
		}
		// And in a session of its own.
		const TArray<uint8> Anew = View.Show(FEditorViewArguments(View.Options)).Render().Data;
		EXPECT_TRUE(First == Again) << TCHAR_TO_UTF8(*View.Name);
		EXPECT_TRUE(First == Anew) << TCHAR_TO_UTF8(*View.Name);
	}
}
