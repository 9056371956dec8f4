#include "Containers/UnrealString.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"

#include <gtest/gtest.h>

namespace
{
	/** What the test modules did, in order, as "<Event>:<Module>" entries. */
	TArray<FString>& Events()
	{
		static TArray<FString> Log;
		return Log;
	}

	FString JoinedEvents()
	{
		return FString::Join(Events(), TEXT(" "));
	}

	class FRecordingModule : public IModuleInterface
	{
	public:
		explicit FRecordingModule(const TCHAR* InName, bool bInAutomaticShutdown = true)
			: Name(InName)
			, bAutomaticShutdown(bInAutomaticShutdown)
		{
		}
		virtual void StartupModule() override { Events().Add(FString(TEXT("Startup:")) + Name); }
		virtual void PreUnloadCallback() override { Events().Add(FString(TEXT("PreUnload:")) + Name); }
		virtual void ShutdownModule() override { Events().Add(FString(TEXT("Shutdown:")) + Name); }
		virtual bool SupportsAutomaticShutdown() override { return bAutomaticShutdown; }

	private:
		FString Name;
		bool bAutomaticShutdown;
	};

	class FFirstTestModule : public FRecordingModule
	{
	public:
		FFirstTestModule()
			: FRecordingModule(TEXT("First"))
		{
		}
	};

	class FSecondTestModule : public FRecordingModule
	{
	public:
		FSecondTestModule()
			: FRecordingModule(TEXT("Second"))
		{
		}
	};

	class FInnerTestModule : public FRecordingModule
	{
	public:
		FInnerTestModule()
			: FRecordingModule(TEXT("Inner"))
		{
		}
	};

	/** Loads the inner module while it starts, as a module that depends on another does. */
	class FOuterTestModule : public FRecordingModule
	{
	public:
		FOuterTestModule()
			: FRecordingModule(TEXT("Outer"))
		{
		}
		virtual void StartupModule() override
		{
			FRecordingModule::StartupModule();
			bSelfLoadedDuringStartup = FModuleManager::Get().IsModuleLoaded(TEXT("OuterTestModule"));
			FModuleManager::Get().LoadModuleChecked(TEXT("InnerTestModule"));
		}
		static inline bool bSelfLoadedDuringStartup = false;
	};

	class FPersistentTestModule : public FRecordingModule
	{
	public:
		FPersistentTestModule()
			: FRecordingModule(TEXT("Persistent"), false)
		{
		}
	};

	class ModuleManager : public ::testing::Test
	{
	protected:
		void SetUp() override { Events().Reset(); }
		void TearDown() override
		{
			for (const TCHAR* Name : {TEXT("FirstTestModule"), TEXT("SecondTestModule"), TEXT("OuterTestModule"), TEXT("InnerTestModule"), TEXT("PersistentTestModule")})
			{
				FModuleManager::Get().UnloadModule(Name);
			}
		}
	};
}

IMPLEMENT_MODULE(FFirstTestModule, FirstTestModule)
IMPLEMENT_MODULE(FSecondTestModule, SecondTestModule)
IMPLEMENT_MODULE(FOuterTestModule, OuterTestModule)
IMPLEMENT_MODULE(FInnerTestModule, InnerTestModule)
IMPLEMENT_MODULE(FPersistentTestModule, PersistentTestModule)

TEST_F(ModuleManager, IsModuleLoadedAndGetModuleNeverLoad)
{
	FModuleManager& Manager = FModuleManager::Get();
	EXPECT_FALSE(Manager.IsModuleLoaded(TEXT("FirstTestModule")));
	EXPECT_EQ(Manager.GetModule(TEXT("FirstTestModule")), nullptr);
	EXPECT_EQ(FModuleManager::GetModulePtr<FFirstTestModule>(TEXT("FirstTestModule")), nullptr);
	EXPECT_FALSE(Manager.IsModuleLoaded(TEXT("FirstTestModule")));
	EXPECT_TRUE(Events().IsEmpty());
}

TEST_F(ModuleManager, LoadingStartsAModuleOnceAndNamesIgnoreCase)
{
	FModuleManager& Manager = FModuleManager::Get();
	IModuleInterface* Loaded = Manager.LoadModule(TEXT("FirstTestModule"));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Manager.LoadModule(TEXT("firsttestmodule")), Loaded);
	EXPECT_EQ(&FModuleManager::LoadModuleChecked<FFirstTestModule>(TEXT("FirstTestModule")), Loaded);
	EXPECT_EQ(&FModuleManager::GetModuleChecked<FFirstTestModule>(TEXT("FirstTestModule")), Loaded);
	EXPECT_TRUE(Manager.IsModuleLoaded(TEXT("FIRSTTESTMODULE")));
	EXPECT_TRUE(JoinedEvents().Equals(TEXT("Startup:First"), ESearchCase::CaseSensitive));
}

TEST_F(ModuleManager, UnloadShutsDownAndALaterLoadStartsAFreshModule)
{
	FModuleManager& Manager = FModuleManager::Get();
	Manager.LoadModule(TEXT("FirstTestModule"));
	EXPECT_TRUE(Manager.UnloadModule(TEXT("FirstTestModule")));
	EXPECT_FALSE(Manager.IsModuleLoaded(TEXT("FirstTestModule")));
	EXPECT_FALSE(Manager.UnloadModule(TEXT("FirstTestModule")));
	EXPECT_NE(Manager.LoadModule(TEXT("FirstTestModule")), nullptr);
	EXPECT_TRUE(JoinedEvents().Equals(TEXT("Startup:First Shutdown:First Startup:First"), ESearchCase::CaseSensitive));
}

TEST_F(ModuleManager, UnknownModulesDoNotLoad)
{
	EXPECT_EQ(FModuleManager::Get().LoadModule(TEXT("NoSuchTestModule")), nullptr);
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(TEXT("NoSuchTestModule")));
}

TEST_F(ModuleManager, AModuleIsLoadedWhileItsStartupRuns)
{
	FModuleManager::Get().LoadModule(TEXT("OuterTestModule"));
	EXPECT_TRUE(FOuterTestModule::bSelfLoadedDuringStartup);
	EXPECT_TRUE(JoinedEvents().Equals(TEXT("Startup:Outer Startup:Inner"), ESearchCase::CaseSensitive));
}

TEST_F(ModuleManager, ShutdownUnloadsMostRecentlyStartedFirstAfterPreUnloadingAll)
{
	FModuleManager& Manager = FModuleManager::Get();
	Manager.LoadModule(TEXT("FirstTestModule"));
	Manager.LoadModule(TEXT("SecondTestModule"));
	Events().Reset();
	Manager.UnloadModulesAtShutdown();
	EXPECT_TRUE(JoinedEvents().Equals(TEXT("PreUnload:Second PreUnload:First Shutdown:Second Shutdown:First"), ESearchCase::CaseSensitive));
	EXPECT_FALSE(Manager.IsModuleLoaded(TEXT("FirstTestModule")));
}

TEST_F(ModuleManager, AModuleLoadedByAnotherStartupShutsDownAfterIt)
{
	// The outer module finishes starting last, so it is the first to shut down.
	FModuleManager& Manager = FModuleManager::Get();
	Manager.LoadModule(TEXT("OuterTestModule"));
	Events().Reset();
	Manager.UnloadModulesAtShutdown();
	EXPECT_TRUE(JoinedEvents().Equals(TEXT("PreUnload:Outer PreUnload:Inner Shutdown:Outer Shutdown:Inner"), ESearchCase::CaseSensitive));
}

TEST_F(ModuleManager, ModulesWithoutAutomaticShutdownStayLoadedAtShutdown)
{
	FModuleManager& Manager = FModuleManager::Get();
	Manager.LoadModule(TEXT("PersistentTestModule"));
	Manager.LoadModule(TEXT("FirstTestModule"));
	Events().Reset();
	Manager.UnloadModulesAtShutdown();
	EXPECT_TRUE(Manager.IsModuleLoaded(TEXT("PersistentTestModule")));
	EXPECT_FALSE(JoinedEvents().Contains(TEXT("Persistent")));
}

TEST(ModuleManagerDeathTest, LoadModuleCheckedOfAnUnknownModuleIsFatal)
{
	EXPECT_DEATH(FModuleManager::Get().LoadModuleChecked(TEXT("NoSuchTestModule")), "Assertion failed: Module .*NoSuchTestModule");
}

TEST(ModuleManagerDeathTest, GetModuleCheckedOfAnUnloadedModuleIsFatal)
{
	EXPECT_DEATH(FModuleManager::GetModuleChecked<FSecondTestModule>(TEXT("SecondTestModule")), "Tried to get module interface for unloaded module: 'SecondTestModule'");
}
